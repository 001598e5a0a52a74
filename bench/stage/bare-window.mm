// The least that a program of this toolkit can be: one window with one field.

#import <AppKit/AppKit.h>

@interface BareDelegate : NSObject <NSApplicationDelegate>
@end

@implementation BareDelegate

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  return YES;
}

@end

int main() {
  @autoreleasepool {
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{@"GSSuppressAppIcon" : @(YES)}];
    NSApplication* application = [NSApplication sharedApplication];
    BareDelegate* delegate = [[[BareDelegate alloc] init] autorelease];
    [application setDelegate:delegate];

    const NSUInteger style = NSTitledWindowMask | NSClosableWindowMask |
                             NSMiniaturizableWindowMask | NSResizableWindowMask;
    NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 460, 214)
                                                   styleMask:style
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    NSTextField* field =
        [[[NSTextField alloc] initWithFrame:NSMakeRect(20, 147, 420, 26)] autorelease];
    [[window contentView] addSubview:field];
    [window makeKeyAndOrderFront:nil];
    [window makeFirstResponder:field];
    [application run];
  }
  return 0;
}
