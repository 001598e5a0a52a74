// Other programs find no server of the application's.

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

namespace launcher {
namespace {

TEST(ServersTest, TheApplicationIsNone) {
  NSString* name = [[NSProcessInfo processInfo] processName];
  EXPECT_EQ([[NSPortNameServer systemDefaultPortNameServer] portForName:name], nil);
}

}  // namespace
}  // namespace launcher
