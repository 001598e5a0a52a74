#include "net/LinkDetector.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

NSTextCheckingResult* firstLink(NSDataDetector* detector, NSString* text, NSUInteger length) {
  return [detector firstMatchInString:text
                              options:NSMatchingReportCompletion
                                range:NSMakeRange(0, length)];
}

/// Whether the link continues beyond the range. The detector takes the end of its range for the
/// text's end and cuts a link there, so search the whole text too.
bool goesOnBehind(NSUInteger length, NSDataDetector* detector, NSString* text) {
  if (length == [text length]) return false;
  NSTextCheckingResult* whole = firstLink(detector, text, [text length]);
  return whole != nil && [whole range].location < length && NSMaxRange([whole range]) > length;
}

class DataDetector : public LinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    @autoreleasepool {
      NSString* searched = toNSString(text);
      NSDataDetector* detector = [[[NSDataDetector alloc] initWithTypes:NSTextCheckingTypeLink
                                                                  error:nullptr] autorelease];
      NSTextCheckingResult* match = firstLink(detector, searched, length);
      if (match == nil || goesOnBehind(length, detector, searched)) return std::nullopt;
      return LinkMatch{toUrl([match URL]), [match range].location, [match range].length};
    }
  }
};

}  // namespace

std::unique_ptr<LinkDetector> makeLinkDetector() { return std::make_unique<DataDetector>(); }

}  // namespace launcher
