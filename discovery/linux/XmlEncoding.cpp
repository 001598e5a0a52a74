#include "discovery/linux/XmlEncoding.h"

#include <algorithm>
#include <cctype>

#include "base/Unicode.h"
#include "discovery/linux/PropertyListForms.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMostConverted = 4U << 20U;

void checkSize(std::string_view bytes) {
  if (bytes.size() > kMostConverted) throw UnreadableList("more than 4 MB to convert");
}

enum class ByteOrder { highFirst, lowFirst };

std::string fromUtf16(std::string_view bytes, ByteOrder order) {
  checkSize(bytes);
  if (bytes.size() % 2 != 0) throw UnreadableList("half a character");
  std::u16string units;
  units.reserve(bytes.size() / 2);
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    units.push_back(static_cast<char16_t>(order == ByteOrder::highFirst ? first << 8U | second
                                                                        : second << 8U | first));
  }
  std::string text = utf8(units);
  if (utf16(text) != units) throw UnreadableList("half a character");
  return text;
}

std::string fromLatin1(std::string_view bytes) {
  checkSize(bytes);
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += utf8(char32_t{static_cast<unsigned char>(byte)});
  return text;
}

/// The encoding that a declaration names, in lower case; empty where there is none.
std::string declaredEncoding(std::string_view document) {
  constexpr std::string_view kAttribute = "encoding";
  if (!document.starts_with("<?xml")) return {};
  std::string_view rest = document.substr(0, document.find("?>"));
  rest.remove_prefix(std::min(rest.find(kAttribute), rest.size()));
  rest.remove_prefix(std::min(rest.find_first_of("\"'"), rest.size()));
  if (rest.empty()) return {};
  const char quote = rest.front();
  rest.remove_prefix(1);
  std::string name(rest.substr(0, rest.find(quote)));
  std::transform(name.begin(), name.end(), name.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return name;
}

}  // namespace

std::string_view inUtf8(std::string_view document, std::string& converted) {
  if (document.starts_with("\xEF\xBB\xBF")) return document.substr(3);
  if (document.starts_with("\xFE\xFF")) {
    return converted = fromUtf16(document.substr(2), ByteOrder::highFirst);
  }
  if (document.starts_with("\xFF\xFE")) {
    return converted = fromUtf16(document.substr(2), ByteOrder::lowFirst);
  }
  if (document.starts_with("\0<"sv)) return converted = fromUtf16(document, ByteOrder::highFirst);
  if (document.starts_with("<\0"sv)) return converted = fromUtf16(document, ByteOrder::lowFirst);

  const std::string encoding = declaredEncoding(document);
  if (encoding.empty() || encoding == "utf-8" || encoding == "us-ascii") return document;
  if (encoding == "iso-8859-1") return converted = fromLatin1(document);
  throw UnreadableList("an unknown encoding: " + encoding.substr(0, 40));
}

}  // namespace launcher
