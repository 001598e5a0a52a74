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

/// The one that all windows are on. Everything that ran before is over.
Stage& stage();

/// As it was at the beginning.
void clearStage();

/// Lets the application handle what comes until the condition holds; false where it does not do so
/// in half a minute.
bool eventually(const std::function<bool()>& condition);

/// Lets the application handle what has come already.
void settle();

/// A controller whose view has loaded and whose search is over; autoreleased.
ViewController* loadedController();

/// Waits for the controller's background work and what that posted.
void finishWork(ViewController* controller);

std::string textOf(NSTextField* field);

}  // namespace launcher
