#import "base/mac/Conversions.h"

#include <vector>

#include "base/Unicode.h"

namespace launcher {

std::string toStdString(NSString* text) {
  if ([text length] == 0) return {};
  std::vector<unichar> characters([text length]);
  [text getCharacters:characters.data() range:NSMakeRange(0, characters.size())];
  return utf8(std::u16string(characters.begin(), characters.end()));
}

std::optional<Url> toUrl(NSURL* url) {
  if (url == nil) return std::nullopt;
  return Url::repaired(toStdString([url absoluteString]));
}

NSString* toNSString(std::string_view text) { return toNSString(std::u16string_view(utf16(text))); }

NSString* toNSString(std::u16string_view units) {
  if (units.empty()) return @"";
  const std::vector<unichar> characters(units.begin(), units.end());
  return [NSString stringWithCharacters:characters.data() length:characters.size()];
}

NSString* toNSStringOrNil(const std::optional<std::string>& text) {
  return text ? toNSString(*text) : nil;
}

}  // namespace launcher
