#include "discovery/OriginAttribute.h"

#include <linux/limits.h>
#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <span>

#include "base/Unicode.h"
#include "discovery/linux/MetadataStore.h"
#include "discovery/linux/XmlText.h"

namespace launcher {
namespace {

/// The attribute's name on a file that was copied from macOS.
constexpr const char* kWhereFroms = "user.com.apple.metadata:kMDItemWhereFroms";

/// The attribute that downloaders on Linux write. It holds the address itself.
constexpr const char* kOriginUrl = "user.xdg.origin.url";

/// The attribute's bytes, or absent. The kernel allows no attribute larger than the buffer.
std::optional<std::string> attributeValue(const std::string& path, const char* name) {
  std::array<char, XATTR_SIZE_MAX> buffer{};
  const ssize_t size = getxattr(path.c_str(), name, buffer.data(), buffer.size());
  if (size < 0) return std::nullopt;
  return std::string(buffer.data(), static_cast<std::size_t>(size));
}

/// Whether a list can hold the text: an address has no control characters, and a list is UTF-8.
bool isAddress(std::string_view text) {
  return !text.empty() && isUtf8(text) &&
         std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < ' '; });
}

/// The address that a file came from: recorded with the file, else by the desktop.
std::optional<std::string> recordedAddress(const std::string& path) {
  const std::optional<std::string> address = attributeValue(path, kOriginUrl);
  return address ? address : downloadAddress(path);
}

/// The address as macOS records it, in a property list; or absent.
std::optional<std::string> originList(const std::string& path) {
  const std::optional<std::string> address = recordedAddress(path);
  if (!address || !isAddress(*address)) return std::nullopt;
  return xmlPropertyList("<array><string>" + xmlText(*address) + "</string></array>");
}

/// Whether the file has no such attribute, or its file system has no attributes at all.
bool meansNoAttribute(int error) { return error == ENODATA || error == ENOTSUP; }

std::ptrdiff_t copied(std::string_view bytes, std::byte* buffer, std::size_t size) {
  if (size == 0) return std::ssize(bytes);
  if (size < bytes.size()) return -1;
  std::ranges::copy(std::as_bytes(std::span(bytes)), buffer);
  return std::ssize(bytes);
}

class ExtendedAttributes : public OriginAttribute {
 public:
  std::ptrdiff_t read(const std::string& path, std::byte* buffer, std::size_t size) const override {
    const ssize_t length = getxattr(path.c_str(), kWhereFroms, buffer, size);
    if (length >= 0 || !meansNoAttribute(errno)) return length;
    const std::optional<std::string> list = originList(path);
    return list ? copied(*list, buffer, size) : -1;
  }
};

}  // namespace

std::unique_ptr<OriginAttribute> makeOriginAttribute() {
  return std::make_unique<ExtendedAttributes>();
}

}  // namespace launcher
