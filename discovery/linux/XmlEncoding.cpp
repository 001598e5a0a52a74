#include "discovery/linux/XmlEncoding.h"

#include <iconv.h>
#include <strings.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

constexpr const char* kUtf8 = "UTF-8";

struct Mark {
  std::string_view bytes;
  const char* encoding;
};

/// Longer marks come first: UTF-32's mark begins like UTF-16's.
constexpr std::array<Mark, 5> kMarks = {{{"\xFF\xFE\0\0"sv, "UTF-32LE"},
                                         {"\0\0\xFE\xFF"sv, "UTF-32BE"},
                                         {"\xEF\xBB\xBF"sv, kUtf8},
                                         {"\xFE\xFF"sv, "UTF-16BE"},
                                         {"\xFF\xFE"sv, "UTF-16LE"}}};

std::string_view withoutBlanks(std::string_view document) {
  document.remove_prefix(std::min(document.find_first_not_of(" \t\r\n"), document.size()));
  return document;
}

/// The encoding that the document's declaration names, else UTF-8. The parser checks the rest of
/// the declaration.
std::string declaredEncoding(std::string_view document) {
  if (!document.starts_with("<?xml")) return kUtf8;
  std::string_view rest = document.substr(0, document.find("?>"));
  rest.remove_prefix(std::min(rest.find("encoding"), rest.size()));
  rest.remove_prefix(std::min(rest.find_first_of("\"'"), rest.size()));
  if (rest.empty()) return kUtf8;
  constexpr std::size_t kLongestName = 40;
  return std::string(rest.substr(1, std::min(rest.find(rest.front(), 1) - 1, kLongestName)));
}

std::string inUtf8From(const std::string& encoding, std::string_view bytes) {
  const iconv_t opened = iconv_open(kUtf8, encoding.c_str());
  const bool isKnown = opened != iconv_t(-1);  // NOLINT: so the function tells of a failure
  if (!isKnown) throw UnreadableList("an unknown encoding: " + encoding);
  const std::unique_ptr<void, int (*)(iconv_t)> conversion(opened, iconv_close);

  std::string text;
  char* input = const_cast<char*>(bytes.data());  // NOLINT: so the function takes what it reads
  std::size_t left = bytes.size();
  while (left > 0) {
    std::array<char, 16384> piece{};
    char* output = piece.data();
    std::size_t room = piece.size();
    const std::size_t answer = iconv(conversion.get(), &input, &left, &output, &room);
    const bool isFull = answer == ~std::size_t{0} && errno == E2BIG;
    if (left > 0 && !isFull) throw UnreadableList("bytes that are no " + encoding);
    text.append(piece.data(), piece.size() - room);
    if (text.size() > kMostListBytes) throw UnreadableList("more than 16 MB");
  }
  return text;
}

std::string_view inUtf8From(const std::string& encoding, std::string_view bytes,
                            std::string& converted) {
  const bool isUtf8 = strcasecmp(encoding.c_str(), kUtf8) == 0;
  const std::string_view text = isUtf8 ? bytes : (converted = inUtf8From(encoding, bytes));
  // The parser would take a NUL for a sign of UTF-16.
  if (text.find('\0') != std::string_view::npos) throw UnreadableList("a NUL in a text");
  return withoutBlanks(text);
}

}  // namespace

std::string_view inUtf8(std::string_view document, std::string& converted) {
  for (const auto& [bytes, encoding] : kMarks) {
    if (!document.starts_with(bytes)) continue;
    return inUtf8From(encoding, document.substr(bytes.size()), converted);
  }
  document = withoutBlanks(document);
  return inUtf8From(declaredEncoding(document), document, converted);
}

}  // namespace launcher
