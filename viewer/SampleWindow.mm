#import "viewer/SampleWindow.h"

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat width = 460;
constexpr CGFloat lineHeight = 18;
constexpr CGFloat rowHeight = 28;
constexpr CGFloat captionWidth = 120;
constexpr CGFloat folderHeight = 3 * lineHeight;
constexpr CGFloat gap = 12;
constexpr CGFloat height = margin + 2 * rowHeight + gap + 2 * rowHeight + folderHeight + margin;

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
  [_window makeKeyAndOrderFront:nil];
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  return YES;
}

- (void)addTexts:(const viewer::Arguments&)arguments {
  CGFloat top = height - margin;
  [self addLine:@"Sample viewer" font:[NSFont boldSystemFontOfSize:17] below:top];
  top -= rowHeight;
  [self addLine:@"It stands in for the remote-control viewer and shows what it was given."
           font:[NSFont systemFontOfSize:11]
          below:top];
  top -= rowHeight + gap;
  [self addCaption:@"Host" value:textOf(arguments.host) height:lineHeight below:top];
  top -= rowHeight;
  [self addCaption:@"IP address" value:textOf(arguments.ipAddress) height:lineHeight below:top];
  top -= rowHeight;
  [self addCaption:@"Resource folder"
             value:textOf(arguments.resourceFolder)
            height:folderHeight
             below:top];
}

- (void)addLine:(NSString*)text font:(NSFont*)font below:(CGFloat)top {
  const NSRect frame = NSMakeRect(margin, top - rowHeight, width - 2 * margin, rowHeight);
  [[_window contentView] addSubview:label(frame, text, font)];
}

/// A value that can be selected, with its caption on the left.
- (void)addCaption:(NSString*)caption
             value:(NSString*)value
            height:(CGFloat)valueHeight
             below:(CGFloat)top {
  const NSRect left = NSMakeRect(margin, top - lineHeight, captionWidth, lineHeight);
  [[_window contentView] addSubview:label(left, caption, [NSFont boldSystemFontOfSize:12])];

  const NSRect right = NSMakeRect(margin + captionWidth, top - valueHeight,
                                  width - 2 * margin - captionWidth, valueHeight);
  NSTextField* field = label(right, value, [NSFont systemFontOfSize:12]);
  [field setSelectable:YES];
  [[field cell] setLineBreakMode:NSLineBreakByCharWrapping];
  [[_window contentView] addSubview:field];
}

@end
