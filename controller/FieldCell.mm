#import "controller/FieldCell.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat besideText = 6.0;

CGFloat lineHeight(NSFont* font) {
  return std::ceil([font ascender] - [font descender] + [font leading]);
}

}  // namespace

@implementation FieldCell

- (NSRect)drawingRectForBounds:(NSRect)bounds {
  const CGFloat height = std::min(lineHeight([self font]), bounds.size.height);
  const CGFloat above = std::floor((bounds.size.height - height) / 2);
  return NSMakeRect(bounds.origin.x + besideText, bounds.origin.y + above,
                    std::max(bounds.size.width - 2 * besideText, 0.0), height);
}

@end
