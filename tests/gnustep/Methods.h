#pragma once

#import <Foundation/Foundation.h>

namespace launcher {

/// Gives `target` every method of `donor` that `target` does not answer yet. A newer toolkit's own
/// methods stay in force.
void addMissingMethods(Class target, Class donor);

/// Swaps two methods of `target`: a call of `original` runs `replacement`, and the other way round.
/// If `target` inherits `original`, the base class is left as it is. Does nothing if there is no
/// `original`.
void exchangeMethods(Class target, SEL original, SEL replacement);

}  // namespace launcher
