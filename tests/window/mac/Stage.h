#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <string>

#import "controller/mac/ViewController.h"
#include "process/LaunchControl.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeHostResolver.h"
#include "tests/doubles/FakeOriginAttribute.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/doubles/FakeProgramStarter.h"
#include "tests/doubles/FakeSleeper.h"
#include "tests/doubles/FakeTranslations.h"
#include "tests/doubles/WordLinkDetector.h"

namespace launcher {

/// The world around the windows of these tests.
struct Stage {
  FakeBundle bundle;
  FakeHostResolver resolver;
  WordLinkDetector links;
  FakeOriginAttribute origin;
  FakeProcessTable processes;
  FakeProgramStarter starter;
  FakeSleeper sleeper;
  FakeTranslations translations;
  std::string listing;  ///< what the listing tool prints; empty: it cannot be started
};

/// The stage that all windows share.
Stage& stage();

/// Ends what was launched, and sets the stage back to its beginning.
void clearStage();

/// Lets the application handle what comes until the condition holds. False if it does not hold
/// within half a minute.
bool eventually(const std::function<bool()>& condition);

/// Lets the application handle what has come already.
void settle();

/// A controller whose view has loaded and whose search is over; autoreleased.
ViewController* loadedController();

/// Waits for the controller's background work and for what that work posted.
void finishWork(ViewController* controller);

std::string textOf(NSTextField* field);

}  // namespace launcher
