#import "controller/mac/WindowBridge.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#import "base/mac/Conversions.h"
#import "controller/mac/ViewController.h"

namespace launcher {
namespace {

BOOL isEnabled(Availability availability) { return availability == Availability::enabled; }

NSColor* named(FieldColour colour) {
  switch (colour) {
    case FieldColour::green:
      return [NSColor greenColor];
    case FieldColour::red:
      return [NSColor redColor];
    case FieldColour::white:
      return [NSColor whiteColor];
  }
}

// Painting what is shown already would be the larger part of a keystroke's cost.

void setEnabled(NSControl* control, Availability availability) {
  if ([control isEnabled] != isEnabled(availability)) [control setEnabled:isEnabled(availability)];
}

void setText(NSTextField* label, NSString* text) {
  if (![[label stringValue] isEqualToString:text]) [label setStringValue:text];
}

void setTitle(NSButton* button, NSString* title) {
  if (![[button title] isEqualToString:title]) [button setTitle:title];
}

void setColour(CALayer* layer, CGColorRef colour) {
  if (!CGColorEqualToColor([layer backgroundColor], colour)) [layer setBackgroundColor:colour];
}

/// Holds a controller and lets go of it on the main thread, where its view belongs.
class Hold {
 public:
  explicit Hold(ViewController* controller) : controller_([controller retain]) {}
  ~Hold() {
    @autoreleasepool {
      [controller_ performSelectorOnMainThread:@selector(release) withObject:nil waitUntilDone:NO];
    }
  }
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;

 private:
  ViewController* controller_;
};

}  // namespace

std::string WindowBridge::vorxLocation() const {
  return fromToolkit([[controller_ vorxLocation] stringValue]);
}

void WindowBridge::setVorxLocation(const std::string& text) {
  [[controller_ vorxLocation] setStringValue:toToolkit(text)];
}

void WindowBridge::setVorxLocation(Availability availability) {
  setEnabled([controller_ vorxLocation], availability);
}

std::string WindowBridge::ipAddress() const {
  return fromToolkit([[controller_ ipAddress] stringValue]);
}

void WindowBridge::setIpAddressColour(FieldColour colour) {
  setColour([[controller_ ipAddress] layer], [named(colour) CGColor]);
}

void WindowBridge::setLaunchButton(Availability availability) {
  setEnabled([controller_ launchButton], availability);
}

void WindowBridge::setLaunchButtonTitle(const std::string& title) {
  setTitle([controller_ launchButton], toToolkit(title));
}

void WindowBridge::setInfoLabel(const std::string& text) {
  setText([controller_ infoLabel], toToolkit(text));
}

void WindowBridge::show(const Alert& alert) {
  NSAlert* panel = [[NSAlert alloc] init];
  [panel setMessageText:toToolkit(alert.message)];
  [panel setInformativeText:toToolkit(alert.informative)];
  [panel addButtonWithTitle:toToolkit(alert.button)];
  [panel runModal];
  [panel release];
}

std::shared_ptr<void> WindowBridge::keepAlive() { return std::make_shared<Hold>(controller_); }

}  // namespace launcher
