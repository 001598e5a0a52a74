// The order in which a class's messages are listed. The platform's own runtime forgets it; there it
// is seen in the program's file.

#include <gtest/gtest.h>

#import "controller/mac/ViewController.h"
#import "tests/window/mac/Messages.h"

namespace launcher {
namespace {

TEST(MessageOrderTest, IsTheControllers) {
  EXPECT_EQ(messagesOf([ViewController class]), controllerMessages());
}

}  // namespace
}  // namespace launcher
