#include "discovery/DownloadOrigin.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "discovery/PropertyList.h"
#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

/// The attribute's bytes. If it shrinks between the two reads, zeros fill the rest. Absent if it is
/// missing, grows between the reads, cannot be read or is too large to be a list.
std::optional<std::string> attributeBytes(const std::string& path,
                                          const OriginAttribute& attribute) {
  const std::ptrdiff_t size = attribute.read(path, nullptr, 0);
  if (size < 0 || static_cast<std::size_t>(size) > kMostListBytes) return std::nullopt;

  std::string bytes(static_cast<std::size_t>(size), '\0');
  const std::span<std::byte> buffer = std::as_writable_bytes(std::span(bytes));
  if (attribute.read(path, buffer.data(), buffer.size()) < 0) return std::nullopt;
  return bytes;
}

/// The first text of an array that holds nothing but texts, or null.
const std::string* firstText(const PropertyList& list) {
  const PropertyList::Array* texts = list.array();
  if (texts == nullptr || texts->empty()) return nullptr;
  const bool allTexts = std::all_of(texts->begin(), texts->end(), [](const PropertyList& item) {
    return item.text() != nullptr;
  });
  return allTexts ? texts->front().text() : nullptr;
}

/// The first address in a list, or absent.
std::optional<Url> firstAddress(std::string_view bytes) {
  const PropertyListReading reading = readPropertyList(bytes);
  if (!reading.value) return std::nullopt;
  const std::string* text = firstText(*reading.value);
  return text == nullptr ? std::nullopt : Url::repaired(*text);
}

}  // namespace

std::optional<std::string> extractWhereAreYouFrom(const Url& file,
                                                  const OriginAttribute& attribute) {
  const std::optional<std::string> bytes = attributeBytes(file.filePath(), attribute);
  if (!bytes) return std::nullopt;
  const std::optional<Url> address = firstAddress(*bytes);
  if (!address) return std::nullopt;
  return address->deletingLastPathComponent().absoluteString();
}

}  // namespace launcher
