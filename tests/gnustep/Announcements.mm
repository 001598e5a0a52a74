#import "tests/gnustep/Announcements.h"

#import <AppKit/AppKit.h>

namespace launcher {

std::vector<std::string>& announcements() {
  static auto* const instance = new std::vector<std::string>;
  return *instance;
}

}  // namespace launcher

/// Replaces GNUstep's function, which does nothing.
void NSAccessibilityPostNotificationWithUserInfo(id, NSString* notification,
                                                 NSDictionary* information) {
  if (![notification isEqualToString:NSAccessibilityAnnouncementRequestedNotification]) return;
  NSString* text = [information objectForKey:NSAccessibilityAnnouncementKey];
  launcher::announcements().emplace_back([text UTF8String]);
}
