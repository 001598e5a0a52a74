#import "controller/mac/TextCells.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat besideText = 6.0;

CGFloat lineHeight(NSFont* font) {
  return std::ceil([font ascender] - [font descender] + [font leading]);
}

/// The middle of a frame, as high as its content if that fits.
NSRect centred(NSRect frame, CGFloat contentHeight) {
  const CGFloat height = std::min(contentHeight, frame.size.height);
  const CGFloat above = std::floor((frame.size.height - height) / 2);
  return NSMakeRect(frame.origin.x, frame.origin.y + above, frame.size.width, height);
}

/// The place of a field's text, both for drawing and for editing.
NSRect lineOf(NSRect frame, NSFont* font) {
  const NSRect line = centred(frame, lineHeight(font));
  return NSMakeRect(line.origin.x + besideText, line.origin.y,
                    std::max(line.size.width - 2 * besideText, 0.0), line.size.height);
}

}  // namespace

@implementation FieldCell

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
  [super drawInteriorWithFrame:lineOf(frame, [self font]) inView:view];
}

- (void)editWithFrame:(NSRect)frame
               inView:(NSView*)view
               editor:(NSText*)editor
             delegate:(id)delegate
                event:(NSEvent*)event {
  [super editWithFrame:lineOf(frame, [self font])
                inView:view
                editor:editor
              delegate:delegate
                 event:event];
}

- (void)selectWithFrame:(NSRect)frame
                 inView:(NSView*)view
                 editor:(NSText*)editor
               delegate:(id)delegate
                  start:(NSInteger)start
                 length:(NSInteger)length {
  [super selectWithFrame:lineOf(frame, [self font])
                  inView:view
                  editor:editor
                delegate:delegate
                   start:start
                  length:length];
}

- (void)endEditing:(NSText*)editor {
  _lastSelection = [editor selectedRange];
  [super endEditing:editor];
}

- (NSRange)lastSelection {
  return _lastSelection;
}

@end

@implementation StatusCell

/// The height of the text at a width.
- (CGFloat)heightForWidth:(CGFloat)width {
  const NSRect bounds =
      [[self attributedStringValue] boundingRectWithSize:NSMakeSize(width, CGFLOAT_MAX)
                                                 options:NSStringDrawingUsesLineFragmentOrigin];
  return std::ceil(bounds.size.height);
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
  const CGFloat height = [self heightForWidth:[self titleRectForBounds:frame].size.width];
  [super drawInteriorWithFrame:centred(frame, height) inView:view];
}

@end
