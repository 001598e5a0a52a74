#import "viewer/mac/SampleWindow.h"

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat width = 500;
constexpr CGFloat iconSize = 48;
constexpr CGFloat lineHeight = 18;
constexpr CGFloat titleHeight = 24;
constexpr CGFloat rowHeight = 28;
constexpr CGFloat captionWidth = 136;
constexpr CGFloat folderHeight = 2 * lineHeight;
constexpr CGFloat height = margin + iconSize + margin + 2 * rowHeight + folderHeight + margin;

NSTextField* label(NSRect frame, NSString* text, NSFont* font) {
  NSTextField* field = [[[NSTextField alloc] initWithFrame:frame] autorelease];
  [field setStringValue:text];
  [field setFont:font];
  [field setEditable:NO];
  [field setSelectable:NO];
  [field setBezeled:NO];
  [field setBordered:NO];
  [field setDrawsBackground:NO];
  return field;
}

NSImageView* iconView(NSRect frame) {
  NSImageView* view = [[[NSImageView alloc] initWithFrame:frame] autorelease];
  [view setImage:[[NSApplication sharedApplication] applicationIconImage]];
  [view setImageScaling:NSImageScaleProportionallyUpOrDown];
  return view;
}

NSString* textOf(const std::string& bytes) {
  NSString* text = [NSString stringWithUTF8String:bytes.c_str()];
  return text != nil ? text : @"(not readable as text)";
}

}  // namespace

@implementation SampleWindow

- (instancetype)initWithArguments:(const viewer::Arguments&)arguments {
  self = [super init];
  if (self == nil) return nil;

  _window =
      [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, width, height)
                                  styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                            NSWindowStyleMaskMiniaturizable
                                    backing:NSBackingStoreBuffered
                                      defer:NO];
  [_window setTitle:@"Sample Viewer"];
  [_window setReleasedWhenClosed:NO];
  [self addTexts:arguments];
  return self;
}

- (void)dealloc {
  [_window release];
  [super dealloc];
}

- (void)show {
  [_window center];
  [_window setInitialFirstResponder:[_window contentView]];
  [_window makeKeyAndOrderFront:nil];
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  return YES;
}

- (void)addTexts:(const viewer::Arguments&)arguments {
  CGFloat top = height - margin;
  [self addHeadBelow:top];
  top -= iconSize + margin;
  [self addCaption:@"Host" value:textOf(arguments.host) height:lineHeight below:top];
  top -= rowHeight;
  [self addCaption:@"IP address" value:textOf(arguments.ipAddress) height:lineHeight below:top];
  top -= rowHeight;
  [self addCaption:@"Resource folder"
             value:textOf(arguments.resourceFolder)
            height:folderHeight
             below:top];
}

/// The icon, and beside it a title and an explanation.
- (void)addHeadBelow:(CGFloat)top {
  NSView* content = [_window contentView];
  [content addSubview:iconView(NSMakeRect(margin, top - iconSize, iconSize, iconSize))];

  const CGFloat left = margin + iconSize + 16;
  const CGFloat room = width - left - margin;
  [content addSubview:label(NSMakeRect(left, top - titleHeight, room, titleHeight),
                            @"Sample viewer", [NSFont boldSystemFontOfSize:17])];
  [content addSubview:label(NSMakeRect(left, top - iconSize, room, lineHeight),
                            @"Shows what the remote-control viewer would be given.",
                            [NSFont systemFontOfSize:11])];
}

/// A value that can be selected, and its caption on the left.
- (void)addCaption:(NSString*)caption
             value:(NSString*)value
            height:(CGFloat)valueHeight
             below:(CGFloat)top {
  const NSRect left = NSMakeRect(margin, top - lineHeight, captionWidth, lineHeight);
  [[_window contentView] addSubview:label(left, caption, [NSFont boldSystemFontOfSize:13])];

  const NSRect right = NSMakeRect(margin + captionWidth, top - valueHeight,
                                  width - 2 * margin - captionWidth, valueHeight);
  NSTextField* field = label(right, value, [NSFont systemFontOfSize:13]);
  [field setSelectable:YES];
  [[field cell] setLineBreakMode:NSLineBreakByCharWrapping];
  [[_window contentView] addSubview:field];
}

@end
