#import "controller/mac/WindowBridge.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#import "base/mac/Conversions.h"
#import "controller/mac/Focus.h"
#import "controller/mac/ViewController.h"

namespace launcher {
namespace {

BOOL isEnabled(Availability availability) { return availability == Availability::enabled; }

NSColor* systemColour(AddressMark mark) {
  switch (mark) {
    case AddressMark::valid:
      return [NSColor greenColor];
    case AddressMark::invalid:
      return [NSColor redColor];
    case AddressMark::empty:
      return [NSColor whiteColor];
  }
}

// Set only what changes: repainting would be most of a keystroke's cost.

void setEnabled(NSControl* control, Availability availability) {
  if ([control isEnabled] != isEnabled(availability)) [control setEnabled:isEnabled(availability)];
}

/// Lets a screen reader speak the text after it finishes its current one.
void announce(NSString* text, NSWindow* window) {
  if (window == nil) return;
  NSAccessibilityPostNotificationWithUserInfo(
      window, NSAccessibilityAnnouncementRequestedNotification, @{
        NSAccessibilityAnnouncementKey : text,
        NSAccessibilityPriorityKey : @(NSAccessibilityPriorityMedium),
      });
}

void setText(NSTextField* label, NSString* text) {
  if ([[label stringValue] isEqualToString:text]) return;
  [label setStringValue:text];
  announce(text, [label window]);
}

void setTitle(NSButton* button, NSString* title) {
  if (![[button title] isEqualToString:title]) [button setTitle:title];
}

void setColour(CALayer* layer, CGColorRef colour) {
  if (!CGColorEqualToColor([layer backgroundColor], colour)) [layer setBackgroundColor:colour];
}

/// Retains a controller and releases it on the main thread, as its view requires.
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
  return toStdString([[controller_ vorxLocation] stringValue]);
}

void WindowBridge::setVorxLocation(const std::string& text) {
  NSTextField* field = [controller_ vorxLocation];
  [field setStringValue:toNSString(text)];
  returnFocus(field);
}

void WindowBridge::setVorxLocation(Availability availability) {
  NSTextField* field = [controller_ vorxLocation];
  const bool enabled = isEnabled(availability);
  if (!enabled && [field currentEditor] != nil) takeFocus([field window]);
  setEnabled(field, availability);
  if (enabled) returnFocus(field);
}

std::string WindowBridge::ipAddress() const {
  return toStdString([[controller_ ipAddress] stringValue]);
}

void WindowBridge::setIpAddressMark(AddressMark mark) {
  setColour([[controller_ ipAddress] layer], [systemColour(mark) CGColor]);
}

void WindowBridge::setLaunchButton(Availability availability) {
  setEnabled([controller_ launchButton], availability);
}

void WindowBridge::setLaunchButtonTitle(const std::string& title) {
  setTitle([controller_ launchButton], toNSString(title));
}

void WindowBridge::setInfoLabel(const std::string& text) {
  setText([controller_ infoLabel], toNSString(text));
}

void WindowBridge::showAlert(const Alert& alert) {
  NSAlert* panel = [[NSAlert alloc] init];
  [panel setMessageText:toNSString(alert.message)];
  [panel setInformativeText:toNSString(alert.informative)];
  [panel addButtonWithTitle:toNSString(alert.button)];
  [[panel window] setLevel:NSModalPanelWindowLevel];  // above the floating window
  [panel runModal];
  [panel release];
  // Nothing has the focus until the location field is enabled and gets it.
  takeFocus([[controller_ view] window]);
}

std::shared_ptr<void> WindowBridge::keepAlive() { return std::make_shared<Hold>(controller_); }

}  // namespace launcher
