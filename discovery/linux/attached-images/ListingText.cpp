#include "discovery/linux/attached-images/ListingText.h"

#include <algorithm>
#include <string_view>

#include "base/Unicode.h"
#include "discovery/linux/XmlText.h"

namespace launcher {
namespace {

/// A key and its text, each on its own line.
std::string entry(std::string_view indent, std::string_view key, std::string_view text) {
  return std::string(indent) + "<key>" + std::string(key) + "</key>\n" + std::string(indent) +
         "<string>" + xmlText(text) + "</string>\n";
}

std::string entityElement(const ImageEntity& entity) {
  constexpr std::string_view kIndent = "\t\t\t\t\t";
  std::string element = "\t\t\t\t<dict>\n" + entry(kIndent, "dev-entry", entity.device);
  if (entity.mountPoint) element += entry(kIndent, "mount-point", *entity.mountPoint);
  return element + "\t\t\t\t</dict>\n";
}

std::string imageElement(const AttachedImage& image) {
  std::string element = "\t\t<dict>\n" + entry("\t\t\t", "image-path", image.path) +
                        "\t\t\t<key>system-entities</key>\n\t\t\t<array>\n";
  for (const ImageEntity& entity : image.entities) element += entityElement(entity);
  return element + "\t\t\t</array>\n\t\t</dict>\n";
}

/// The bytes as well-formed text on one line.
std::string printable(std::string_view bytes) {
  std::string text;
  for (const char c : repairedUtf8(bytes)) {
    const bool control = (c >= '\0' && c < ' ') || c == '\x7f';
    if (!control) {
      text += c;
      continue;
    }
    const auto digit = [c](int shift) { return static_cast<char>('0' + (c >> shift & 7)); };
    text += {'\\', digit(6), digit(3), digit(0)};
  }
  return text;
}

}  // namespace

std::string propertyListOf(const std::vector<AttachedImage>& images) {
  std::string element = "<dict>\n\t<key>images</key>\n\t<array>\n";
  for (const AttachedImage& image : images) element += imageElement(image);
  return xmlPropertyList(element + "\t</array>\n</dict>");
}

std::string tableOf(const std::vector<AttachedImage>& images) {
  if (images.empty()) return "No disk image is attached.\n";
  std::size_t width = 0;
  for (const AttachedImage& image : images) {
    for (const ImageEntity& entity : image.entities) width = std::max(width, entity.device.size());
  }
  std::string table;
  for (const AttachedImage& image : images) {
    table += printable(image.path) + "\n";
    for (const ImageEntity& entity : image.entities) {
      table += "    " + entity.device + std::string(width + 2 - entity.device.size(), ' ') +
               (entity.mountPoint ? printable(*entity.mountPoint) : "not mounted") + "\n";
    }
  }
  return table;
}

}  // namespace launcher
