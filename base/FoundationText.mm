#import "base/FoundationText.h"

#include <vector>

#include "base/Text.h"

namespace launcher {

std::string fromToolkit(NSString* text) {
  std::vector<unichar> characters([text length]);
  [text getCharacters:characters.data() range:NSMakeRange(0, characters.size())];
  return utf8(std::u16string(characters.begin(), characters.end()));
}

NSString* toToolkit(std::string_view text) { return toToolkit(std::u16string_view(utf16(text))); }

NSString* toToolkit(std::u16string_view units) {
  const std::vector<unichar> characters(units.begin(), units.end());
  return [NSString stringWithCharacters:characters.data() length:characters.size()];
}

}  // namespace launcher
