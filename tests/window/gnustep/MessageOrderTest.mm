// The order in which a class lists its messages. The runtime of macOS does not keep it; there it
// shows only in the program's file.

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
