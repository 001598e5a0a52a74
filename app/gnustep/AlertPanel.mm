#import "app/gnustep/AlertPanel.h"

#include <algorithm>
#include <cmath>

#import "app/gnustep/XWindows.h"

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat iconSize = 48;
constexpr CGFloat textLeft = margin + iconSize + 16;
constexpr CGFloat textWidth = 320;
constexpr CGFloat width = textLeft + textWidth + margin;
constexpr CGFloat buttonHeight = 28;
constexpr CGFloat leastButtonWidth = 90;

NSTextField* label(NSString* text, NSFont* font) {
  NSTextField* field = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  [field setStringValue:text != nil ? text : @""];
  [field setFont:font];
  [field setEditable:NO];
  [field setBordered:NO];
  [field setBezeled:NO];
  [field setDrawsBackground:NO];
  [[field cell] setWraps:YES];
  const NSRect bounds =
      [[field attributedStringValue] boundingRectWithSize:NSMakeSize(textWidth - 4, CGFLOAT_MAX)
                                                  options:NSStringDrawingUsesLineFragmentOrigin];
  [field setFrameSize:NSMakeSize(textWidth, std::ceil(bounds.size.height) + 4)];
  return field;
}

NSImageView* iconView(NSImage* icon) {
  NSImageView* view =
      [[[NSImageView alloc] initWithFrame:NSMakeRect(0, 0, iconSize, iconSize)] autorelease];
  [view setImage:icon != nil ? icon : [NSApp applicationIconImage]];
  [view setImageScaling:NSImageScaleProportionallyUpOrDown];
  return view;
}

}  // namespace

@implementation AlertPanel

- (instancetype)initWithAlert:(NSAlert*)alert owner:(NSWindow*)owner {
  NSTextField* message = label([alert messageText], [NSFont boldSystemFontOfSize:13]);
  NSTextField* informative = label([alert informativeText], [NSFont systemFontOfSize:12]);
  const CGFloat textHeight = [message frame].size.height + 6 + [informative frame].size.height;
  const CGFloat height = margin + std::max(textHeight, iconSize) + margin + buttonHeight + margin;

  // A window that does not say that it can be closed is closed by cutting its program off.
  self = [super initWithContentRect:NSMakeRect(0, 0, width, height)
                          styleMask:NSTitledWindowMask | NSClosableWindowMask
                            backing:NSBackingStoreBuffered
                              defer:NO];
  if (self == nil) return nil;
  [self setReleasedWhenClosed:NO];
  [self setTitle:owner != nil ? [owner title] : @""];
  _owner = owner;

  [self add:iconView([alert icon]) leftAt:margin topAt:height - margin];
  [self add:message leftAt:textLeft topAt:height - margin];
  [self add:informative leftAt:textLeft topAt:NSMinY([message frame]) - 6];
  [self addButtons:[alert buttons]];
  return self;
}

- (void)add:(NSView*)view leftAt:(CGFloat)left topAt:(CGFloat)top {
  [view setFrameOrigin:NSMakePoint(left, top - [view frame].size.height)];
  [[self contentView] addSubview:view];
}

- (void)addButtons:(NSArray*)buttons {
  CGFloat right = width - margin;
  NSInteger number = 0;
  for (NSButton* button in buttons) {
    [button sizeToFit];
    const CGFloat wanted = std::max([button frame].size.width + 16, leastButtonWidth);
    [button setFrame:NSMakeRect(right - wanted, margin, wanted, buttonHeight)];
    [button setImage:nil];
    [button setTag:number++];
    [button setTarget:self];
    [button setAction:@selector(pressed:)];
    [[self contentView] addSubview:button];
    right -= wanted + 10;
  }
  [self setInitialFirstResponder:[buttons objectAtIndex:0]];
}

- (void)pressed:(NSButton*)button {
  [NSApp stopModalWithCode:[button tag]];
}

- (void)keyDown:(NSEvent*)event {
  const bool escape = [[event charactersIgnoringModifiers] isEqualToString:@"\x1b"];
  escape ? [NSApp stopModalWithCode:0] : [super keyDown:event];
}

- (void)performClose:(id)sender {
  [NSApp stopModalWithCode:0];
}

/// The toolkit centres a modal window on the screen; this one stands in the middle of its owner.
- (void)center {
  if (_owner == nil) return [super center];
  const NSRect around = [_owner frame];
  const NSSize size = [self frame].size;
  [self setFrameOrigin:NSMakePoint(std::round(NSMidX(around) - size.width / 2),
                                   std::round(NSMidY(around) - size.height / 2))];
}

- (void)orderWindow:(NSWindowOrderingMode)place relativeTo:(NSInteger)other {
  if (place != NSWindowOut && _owner != nil) {
    launcher::setTransient(launcher::xDisplay(self), launcher::xWindow(self),
                           launcher::xWindow(_owner));
  }
  [super orderWindow:place relativeTo:other];
}

- (NSInteger)runModal {
  const NSInteger pressed = [NSApp runModalForWindow:self];
  [self orderOut:nil];
  return pressed;
}

@end
