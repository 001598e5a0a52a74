#import "base/mac/Conversions.h"

#include <vector>

#include "base/Text.h"

namespace launcher {

std::string fromToolkit(NSString* text) {
  if ([text length] == 0) return {};
  std::vector<unichar> characters([text length]);
  [text getCharacters:characters.data() range:NSMakeRange(0, characters.size())];
  return utf8(std::u16string(characters.begin(), characters.end()));
}

std::optional<Url> fromToolkit(NSURL* url) {
  if (url == nil) return std::nullopt;
  return Url::parse(fromToolkit([url absoluteString]));
}

NSString* toToolkit(std::string_view text) { return toToolkit(std::u16string_view(utf16(text))); }

NSString* toToolkit(std::u16string_view units) {
  if (units.empty()) return @"";
  const std::vector<unichar> characters(units.begin(), units.end());
  return [NSString stringWithCharacters:characters.data() length:characters.size()];
}

NSString* toToolkitOrNil(const std::optional<std::string>& text) {
  return text ? toToolkit(*text) : nil;
}

}  // namespace launcher
