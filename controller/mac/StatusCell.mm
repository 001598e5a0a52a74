#import "controller/mac/StatusCell.h"

#include <algorithm>
#include <cmath>

@implementation StatusCell

/// The height of the text at a width.
- (CGFloat)heightForWidth:(CGFloat)width {
  const NSRect bounds =
      [[self attributedStringValue] boundingRectWithSize:NSMakeSize(width, CGFLOAT_MAX)
                                                 options:NSStringDrawingUsesLineFragmentOrigin];
  return std::ceil(bounds.size.height);
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
  const CGFloat width = [self titleRectForBounds:frame].size.width;
  const CGFloat height = std::min([self heightForWidth:width], frame.size.height);
  const CGFloat above = std::floor((frame.size.height - height) / 2);
  [super drawInteriorWithFrame:NSMakeRect(frame.origin.x, frame.origin.y + above, frame.size.width,
                                          height)
                        inView:view];
}

@end
