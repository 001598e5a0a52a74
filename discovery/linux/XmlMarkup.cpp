#include "discovery/linux/XmlMarkup.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "base/Unicode.h"
#include "discovery/linux/PropertyListForms.h"

namespace launcher {
namespace {

struct Entity {
  std::string_view name;
  std::string_view text;
};

constexpr std::array<Entity, 5> kEntities = {
    {{"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"apos", "'"}, {"quot", "\""}}};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// Whether XML knows the character.
bool isXmlCharacter(std::uint32_t point) {
  if (point < 0x20) return point == '\t' || point == '\n' || point == '\r';
  if (point < 0x10000) return (point < 0xD800 || point > 0xDFFF) && point < 0xFFFE;
  return point <= 0x10FFFF;
}

/// The character that "#65" or "#x41" refers to, or absent.
std::optional<char32_t> numbered(std::string_view reference) {
  if (!reference.starts_with('#')) return std::nullopt;
  const bool hexadecimal = reference.starts_with("#x");
  const std::string_view digits = reference.substr(hexadecimal ? 2 : 1);
  std::uint32_t point = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), point, hexadecimal ? 16 : 10);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return isXmlCharacter(point) ? std::optional<char32_t>(point) : std::nullopt;
}

/// The text with every end of a line as a line feed, whichever system wrote it.
std::string withLineFeeds(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool pair = text.substr(at, 2) == "\r\n";
    if (!pair) result += text[at] == '\r' ? '\n' : text[at];
  }
  return result;
}

/// The text that an entity's name stands for.
std::string_view named(std::string_view reference) {
  for (const auto& [name, text] : kEntities) {
    if (name == reference) return text;
  }
  throw UnreadableList("an unknown entity");
}

}  // namespace

void XmlMarkup::skipProlog() {
  skipBetweenElements();
  while (skip("<!DOCTYPE")) {
    skipDocumentType();
    skipBetweenElements();
  }
}

XmlTag XmlMarkup::takeTag() {
  if (!skip("<")) throw UnreadableList("no element where one belongs");
  const std::string_view name =
      takeWhile([](char c) { return c != '>' && c != '/' && !isBlank(c); });
  skipUpTo("></");
  const bool closed = skip("/");
  if (!skip(">")) throw UnreadableList("an element's start is cut off");
  return {name, closed};
}

std::optional<XmlTag> XmlMarkup::takeTagIn(const XmlTag& parent) {
  if (parent.closed) return std::nullopt;
  skipBetweenElements();
  if (!rest_.starts_with("</")) return takeTag();
  takeEnd(parent);
  return std::nullopt;
}

std::string XmlMarkup::takeTextIn(const XmlTag& tag) {
  std::string text;
  if (tag.closed) return text;
  while (!rest_.starts_with("</")) {
    if (skip("<![CDATA[")) {
      text += withLineFeeds(takeUntil("]]>"));
    } else if (skip("&")) {
      text += takeReference();
    } else {
      text += withLineFeeds(takeCharacters());
    }
  }
  takeEnd(tag);
  return text;
}

void XmlMarkup::takeNothingIn(const XmlTag& tag) {
  if (!tag.closed) takeEnd(tag);
}

void XmlMarkup::takeEpilog() {
  skipBetweenElements();
  if (!rest_.empty()) throw UnreadableList("something follows the list");
}

bool XmlMarkup::skip(std::string_view expected) {
  if (!rest_.starts_with(expected)) return false;
  rest_.remove_prefix(expected.size());
  return true;
}

void XmlMarkup::skipBlanks() { takeWhile(isBlank); }

void XmlMarkup::skipBetweenElements() {
  for (;;) {
    skipBlanks();
    if (skip("<!--")) {
      takeUntil("-->");
    } else if (skip("<?")) {
      takeUntil("?>");
    } else {
      return;
    }
  }
}

void XmlMarkup::skipDocumentType() {
  skipUpTo("><[");
  if (!skip(">")) throw UnreadableList("a document type with declarations");
}

/// Passes over what comes before one of the characters, and over quoted texts whatever they hold.
void XmlMarkup::skipUpTo(std::string_view stops) {
  for (;;) {
    takeWhile([stops](char c) {
      return c != '"' && c != '\'' && stops.find(c) == std::string_view::npos;
    });
    if (skip("\"")) {
      takeUntil("\"");
    } else if (skip("'")) {
      takeUntil("'");
    } else {
      return;
    }
  }
}

void XmlMarkup::takeEnd(const XmlTag& tag) {
  if (!skip("</") || !skip(tag.name)) throw UnreadableList("an element lacks its end");
  skipBlanks();
  if (!skip(">")) throw UnreadableList("an element's end is cut off");
}

std::string XmlMarkup::takeReference() {
  const std::string_view reference = takeUntil(";");
  if (const auto point = numbered(reference)) return utf8(*point);
  return std::string(named(reference));
}

std::string_view XmlMarkup::takeCharacters() {
  const std::string_view taken = takeWhile([](char c) { return c != '<' && c != '&'; });
  if (taken.empty()) throw UnreadableList("no text where one belongs");
  return taken;
}

/// What comes before `end`, which is taken, too.
std::string_view XmlMarkup::takeUntil(std::string_view end) {
  const std::size_t size = rest_.find(end);
  if (size == std::string_view::npos) throw UnreadableList("markup is cut off");
  const std::string_view taken = rest_.substr(0, size);
  rest_.remove_prefix(size + end.size());
  return taken;
}

template <class Condition>
std::string_view XmlMarkup::takeWhile(Condition condition) {
  const auto* const end = std::find_if_not(rest_.begin(), rest_.end(), condition);
  const std::string_view taken(rest_.begin(), end);
  rest_.remove_prefix(taken.size());
  return taken;
}

}  // namespace launcher
