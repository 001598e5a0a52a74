#import "controller/Conversions.h"

#include <vector>

#include "base/Text.h"

namespace launcher {
namespace {

PropertyList valueOf(id object);

PropertyList::Array arrayOf(NSArray* objects) {
  PropertyList::Array values;
  for (id object in objects) values.push_back(valueOf(object));
  return values;
}

bool hasTextKeysOnly(NSDictionary* dictionary) {
  for (id key in dictionary) {
    if (![key isKindOfClass:[NSString class]]) return false;
  }
  return true;
}

PropertyList valueOf(id object) {
  if ([object isKindOfClass:[NSString class]]) return fromToolkit(static_cast<NSString*>(object));
  if ([object isKindOfClass:[NSArray class]]) return arrayOf(object);
  if ([object isKindOfClass:[NSDictionary class]] && hasTextKeysOnly(object)) {
    return fromToolkit(static_cast<NSDictionary*>(object));
  }
  return {};
}

}  // namespace

std::string fromToolkit(NSString* text) {
  std::vector<unichar> characters([text length]);
  [text getCharacters:characters.data() range:NSMakeRange(0, characters.size())];
  return utf8(std::u16string(characters.begin(), characters.end()));
}

PropertyList::Dictionary fromToolkit(NSDictionary* dictionary) {
  PropertyList::Dictionary values;
  for (id key in dictionary) {
    if (![key isKindOfClass:[NSString class]]) continue;
    values[fromToolkit(static_cast<NSString*>(key))] = valueOf([dictionary objectForKey:key]);
  }
  return values;
}

std::optional<Url> fromToolkit(NSURL* url) {
  if (url == nil) return std::nullopt;
  return Url::parse(fromToolkit([url absoluteString]));
}

NSString* toToolkit(std::string_view text) {
  const std::u16string units = utf16(text);
  const std::vector<unichar> characters(units.begin(), units.end());
  return [NSString stringWithCharacters:characters.data() length:characters.size()];
}

NSString* toToolkitOrNil(const std::optional<std::string>& text) {
  return text ? toToolkit(*text) : nil;
}

}  // namespace launcher
