// What the link detector of macOS makes of the platform's answers. The platform's detector is not
// available here. Its double cuts a link at the end of its range, as the real one is said to.

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

bool canBeMade = true;
std::vector<std::string> questions;

}  // namespace

@interface FoundLink : NSTextCheckingResult {
  NSRange range_;
}
- (instancetype)initWithRange:(NSRange)range;
@end

@implementation FoundLink
- (instancetype)initWithRange:(NSRange)range {
  self = [super init];
  range_ = range;
  return self;
}
- (NSRange)range {
  return range_;
}
- (NSURL*)URL {
  return [NSURL URLWithString:@"https://h.example/"];
}
@end

@interface NSDataDetector : NSObject
- (instancetype)initWithTypes:(NSTextCheckingTypes)types error:(NSError**)error;
- (NSTextCheckingResult*)firstMatchInString:(NSString*)text
                                    options:(NSMatchingOptions)options
                                      range:(NSRange)range;
@end

@implementation NSDataDetector
- (instancetype)initWithTypes:(NSTextCheckingTypes)types error:(NSError**)error {
  (void)error;
  self = [super init];
  if (canBeMade && types == NSTextCheckingTypeLink) return self;
  [self release];
  return nil;
}

/// The first word that begins with a scheme.
- (NSTextCheckingResult*)firstMatchInString:(NSString*)text
                                    options:(NSMatchingOptions)options
                                      range:(NSRange)range {
  questions.push_back("options " + std::to_string(options) + ", " + std::to_string(range.location) +
                      "+" + std::to_string(range.length));
  const NSRange scheme = [text rangeOfString:@"https://" options:0 range:range];
  if (scheme.length == 0) return nil;
  const NSRange rest = NSMakeRange(scheme.location, NSMaxRange(range) - scheme.location);
  const NSRange blank = [text rangeOfString:@" " options:0 range:rest];
  const NSUInteger end = blank.length == 0 ? NSMaxRange(range) : blank.location;
  const NSRange link = NSMakeRange(scheme.location, end - scheme.location);
  return [[[FoundLink alloc] initWithRange:link] autorelease];
}
@end

// The other platform's detector has this name already.
#define makeLinkDetector makeDataDetector
#include "net/mac/LinkDetector.mm"

namespace launcher {
namespace {

class LinkDetectorMacTest : public testing::Test {
 protected:
  LinkDetectorMacTest() {
    canBeMade = true;
    questions.clear();
  }

  static std::string found(std::u16string_view text, std::size_t length) {
    const auto match = makeDataDetector()->firstMatch(text, length);
    if (!match) return "none";
    return match->url->absoluteString() + " at " + std::to_string(match->location) + "+" +
           std::to_string(match->length);
  }
};

TEST_F(LinkDetectorMacTest, AsksOnceAboutAWholeText) {
  EXPECT_EQ(found(u"at https://h.example/a b", 24), "https://h.example/ at 3+19");
  EXPECT_EQ(questions, std::vector<std::string>{"options 2, 0+24"});
}

TEST_F(LinkDetectorMacTest, ALinkThatTheRangeCutsIsNone) {
  EXPECT_EQ(found(u"at https://h.example/a b", 21), "none");
  EXPECT_EQ(questions, (std::vector<std::string>{"options 2, 0+21", "options 2, 0+24"}));
  EXPECT_EQ(found(u"https://h.example/\U0001f600", 19), "none");
}

TEST_F(LinkDetectorMacTest, ALinkThatEndsInTheRangeIsKept) {
  EXPECT_EQ(found(u"at https://h.example/a b", 22), "https://h.example/ at 3+19");
  EXPECT_EQ(found(u"at https://h.example/a b", 23), "https://h.example/ at 3+19");
}

TEST_F(LinkDetectorMacTest, ALinkBehindTheRangeIsNone) {
  EXPECT_EQ(found(u"word https://h.example/", 5), "none");
  EXPECT_EQ(questions, std::vector<std::string>{"options 2, 0+5"});
}

TEST_F(LinkDetectorMacTest, WithoutADetectorThereIsNoLink) {
  canBeMade = false;
  EXPECT_EQ(found(u"https://h.example/", 18), "none");
}

}  // namespace
}  // namespace launcher
