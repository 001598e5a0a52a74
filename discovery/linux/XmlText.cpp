#include "discovery/linux/XmlText.h"

#include "base/Unicode.h"

namespace launcher {
namespace {

constexpr std::string_view kReplacement = "\ufffd";

/// What stands for an ASCII character.
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

}  // namespace

std::string xmlText(std::string_view bytes) {
  std::string text;
  for (const char& character : repairedUtf8(bytes)) text += escaped(character);
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
