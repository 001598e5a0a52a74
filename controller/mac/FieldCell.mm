#import "controller/mac/FieldCell.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat besideText = 6.0;

CGFloat lineHeight(NSFont* font) {
  return std::ceil([font ascender] - [font descender] + [font leading]);
}

/// The place of the text, both for drawing and for editing.
NSRect lineOf(NSRect frame, NSFont* font) {
  const CGFloat height = std::min(lineHeight(font), frame.size.height);
  const CGFloat above = std::floor((frame.size.height - height) / 2);
  return NSMakeRect(frame.origin.x + besideText, frame.origin.y + above,
                    std::max(frame.size.width - 2 * besideText, 0.0), height);
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
