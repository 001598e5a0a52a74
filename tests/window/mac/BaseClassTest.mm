// What the controller leaves to its base class, and when.

#import <objc/runtime.h>

#import <QuartzCore/QuartzCore.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

std::function<void(ViewController*)> whenCalled;

void callMessage(id self, SEL) { whenCalled(self); }

id callFirstInitialiser(id self, SEL, NSString*, NSBundle*) {
  whenCalled(self);
  [self release];
  return nil;
}

id callSecondInitialiser(id self, SEL, NSCoder*) {
  whenCalled(self);
  [self release];
  return nil;
}

/// Replaces a message of NSViewController as long as this lives. A replaced initialiser fails.
class BaseClassMessage {
 public:
  template <class Function>
  BaseClassMessage(SEL message, Function stand, std::function<void(ViewController*)> action)
      : method_(class_getInstanceMethod([NSViewController class], message)) {
    whenCalled = std::move(action);
    // Cast by way of void*: compilers warn of a cast between types of functions.
    void* const implementation = reinterpret_cast<void*>(stand);
    before_ = method_setImplementation(method_, reinterpret_cast<IMP>(implementation));
  }
  ~BaseClassMessage() {
    method_setImplementation(method_, before_);
    whenCalled = nullptr;
  }
  BaseClassMessage(const BaseClassMessage&) = delete;
  BaseClassMessage& operator=(const BaseClassMessage&) = delete;

 private:
  Method method_;
  IMP before_ = nullptr;
};

class BaseClassTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }
};

TEST_F(BaseClassTest, LoadsBeforeTheFieldsAreSetUp) {
  int calls = 0;
  CALayer* layerThen = [CALayer layer];
  const BaseClassMessage base(@selector(viewDidLoad), callMessage, [&](ViewController* controller) {
    ++calls;
    layerThen = [[controller vorxLocation] layer];
  });
  ViewController* controller = loadedController();
  EXPECT_EQ(calls, 1);
  EXPECT_NE(layerThen, [[controller vorxLocation] layer]);
}

TEST_F(BaseClassTest, AppearsBeforeTheWindowFloats) {
  LauncherWindowOnScreen shown;
  [shown.window() setLevel:NSNormalWindowLevel];
  std::vector<NSInteger> levels;
  const BaseClassMessage base(@selector(viewWillAppear), callMessage,
                              [&](ViewController*) { levels.push_back([shown.window() level]); });
  [shown.controller() viewWillAppear];
  EXPECT_EQ(levels, (std::vector<NSInteger>{NSNormalWindowLevel}));
  EXPECT_EQ([shown.window() level], NSFloatingWindowLevel);
}

TEST_F(BaseClassTest, AnInitialiserThatFailsGivesNothingAndFindsAllPrepared) {
  int prepared = 0;
  const auto count = [&prepared](ViewController* controller) {
    prepared += [controller backgroundQueue] != nil;
  };
  {
    const BaseClassMessage base(@selector(initWithNibName:bundle:), callFirstInitialiser, count);
    EXPECT_EQ([[ViewController alloc] initWithNibName:@"ViewController" bundle:nil], nil);
    EXPECT_EQ(prepared, 1);
  }
  {
    const BaseClassMessage base(@selector(initWithCoder:), callSecondInitialiser, count);
    NSCoder* coder = [[[NSCoder alloc] init] autorelease];
    EXPECT_EQ([[ViewController alloc] initWithCoder:coder], nil);
    EXPECT_EQ(prepared, 2);
  }
}

}  // namespace
}  // namespace launcher
