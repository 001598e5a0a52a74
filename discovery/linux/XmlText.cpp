#include "discovery/linux/XmlText.h"

#include "base/Unicode.h"

namespace launcher {
namespace {

constexpr std::string_view kReplacement = "\ufffd";

/// An ASCII character as it is written in XML.
std::string_view escaped(const char& character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '\r':
      return "&#13;";
    default:
      break;
  }
  const bool isControl = character >= '\0' && character < ' ';
  const bool isKnown = !isControl || character == '\t' || character == '\n';
  return isKnown ? std::string_view(&character, 1) : kReplacement;
}

/// Replaces the two characters beyond ASCII that XML does not allow.
std::string withoutNoncharacters(std::string text) {
  for (const std::string_view unknown : {"\uFFFE", "\uFFFF"}) {
    for (std::size_t at = text.find(unknown); at != std::string::npos;
         at = text.find(unknown, at)) {
      text.replace(at, unknown.size(), kReplacement);
    }
  }
  return text;
}

}  // namespace

std::string xmlText(std::string_view bytes) {
  const std::string known = withoutNoncharacters(repairedUtf8(bytes));
  std::string text;
  for (const char& character : known) text += escaped(character);
  return text;
}

std::string xmlPropertyList(std::string_view element) {
  return std::string(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
             "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
             "<plist version=\"1.0\">\n")
      .append(element)
      .append("\n</plist>\n");
}

}  // namespace launcher
