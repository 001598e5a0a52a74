// An attribute gives a location only if it is an array of texts. The location is the folder of the
// first text.
#include "discovery/DownloadOrigin.h"

#include <algorithm>
#include <cstring>

#include "discovery/PropertyList.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

/// An attribute that holds the input. If the input's size is odd, the attribute shrinks between the
/// size probe and the read.
class InputAttribute : public OriginAttribute {
 public:
  explicit InputAttribute(std::string_view bytes) : bytes_(bytes) {}

  std::ptrdiff_t read(const std::string& /*path*/, std::byte* buffer,
                      std::size_t size) const override {
    if (buffer == nullptr) return std::ssize(bytes_);
    if (bytes_.size() % 2 == 1) size /= 2;
    std::memcpy(buffer, bytes_.data(), std::min(size, bytes_.size()));
    return static_cast<std::ptrdiff_t>(size);
  }

 private:
  std::string_view bytes_;
};

static std::optional<std::string> expectedOf(std::string_view bytes) {
  const auto list = readPropertyList(bytes).value;
  if (!list || list->array() == nullptr || list->array()->empty()) return std::nullopt;
  for (const PropertyList& item : *list->array()) {
    if (item.text() == nullptr) return std::nullopt;
  }
  const auto url = Url::repaired(*list->array()->front().text());
  if (!url) return std::nullopt;
  return url->deletingLastPathComponent().absoluteString();
}

FUZZ_TARGET(text) {
  const auto location = extractWhereAreYouFrom(Url::ofFile("/a/b.dmg"), InputAttribute(text));
  require(!location || Url::parse(*location), "a location is a URL");
  if (text.size() % 2 == 0) require(location == expectedOf(text), "the first text's folder");
}
