#include "net/LinkDetector.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

class DataDetector : public LinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    @autoreleasepool {
      NSDataDetector* detector = [[[NSDataDetector alloc] initWithTypes:NSTextCheckingTypeLink
                                                                  error:nil] autorelease];
      NSTextCheckingResult* match = [detector firstMatchInString:toNSString(text)
                                                         options:NSMatchingReportCompletion
                                                           range:NSMakeRange(0, length)];
      if (match == nil) return std::nullopt;
      return LinkMatch{toUrl([match URL]), [match range].location, [match range].length};
    }
  }
};

}  // namespace

std::unique_ptr<LinkDetector> makeLinkDetector() { return std::make_unique<DataDetector>(); }

}  // namespace launcher
