// Images come from the formats of the icon and of the toolkit's own ones.

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

namespace launcher {
namespace {

TEST(ImagesTest, NoOtherFormatsAreLookedFor) {
  NSArray* types = [NSImage imageUnfilteredFileTypes];
  EXPECT_TRUE([types containsObject:@"png"]) << [[types description] UTF8String];
  EXPECT_TRUE([types containsObject:@"tiff"]) << [[types description] UTF8String];
  EXPECT_FALSE([types containsObject:@"jpeg"]) << [[types description] UTF8String];
  EXPECT_FALSE([types containsObject:@"heic"]) << [[types description] UTF8String];
}

TEST(ImagesTest, TheToolkitsOwnAreFound) {
  NSImage* mark = [NSImage imageNamed:@"NSMenuCheckmark"];
  ASSERT_NE(mark, nil);
  EXPECT_GT([mark size].width, 0);
}

}  // namespace
}  // namespace launcher
