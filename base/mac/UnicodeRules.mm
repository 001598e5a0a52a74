#include "base/UnicodeRules.h"
#include "base/Unicode.h"
#import "base/mac/Conversions.h"

namespace launcher {

/// Counts Foundation's composed character sequences. Foundation does not document whether "\r\n" is
/// one, so check for the pair here.
std::size_t graphemeClusterCount(std::u16string_view units) {
  @autoreleasepool {
    NSString* text = toNSString(units);
    std::size_t count = 0;
    for (std::size_t at = 0; at < units.size();) {
      const bool endsLine = at > 0 && units.substr(at - 1, 2) == u"\r\n";
      if (!endsLine) ++count;
      at = NSMaxRange([text rangeOfComposedCharacterSequenceAtIndex:at]);
    }
    return count;
  }
}

std::u16string decomposition(std::u16string_view units) {
  @autoreleasepool {
    return utf16(toStdString([toNSString(units) decomposedStringWithCanonicalMapping]));
  }
}

}  // namespace launcher
