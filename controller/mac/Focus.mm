#import "controller/mac/Focus.h"

#include <algorithm>

#import "controller/mac/TextCells.h"

namespace launcher {
namespace {

NSRange within(NSRange range, NSUInteger length) {
  const NSUInteger start = std::min(range.location, length);
  return NSMakeRange(start, std::min(range.length, length - start));
}

NSRange lastSelection(NSTextField* field) {
  id cell = [field cell];
  const NSRange last =
      [cell isKindOfClass:[FieldCell class]] ? [cell lastSelection] : NSMakeRange(0, 0);
  return within(last, [[field stringValue] length]);
}

}  // namespace

void takeFocus(NSWindow* window) { [window makeFirstResponder:nil]; }

void returnFocus(NSTextField* field) {
  NSWindow* window = [field window];
  if ([window firstResponder] != window) return;
  [window makeFirstResponder:field];
  [[field currentEditor] setSelectedRange:lastSelection(field)];
}

}  // namespace launcher
