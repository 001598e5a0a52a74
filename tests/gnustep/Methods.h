#pragma once

#import <Foundation/Foundation.h>

namespace launcher {

/// Gives `target` every method of `donor` that `target` does not answer yet, so that a newer
/// toolkit's own ones stay in force.
void addMissingMethods(Class target, Class donor);

/// Lets `replacement`, a method of `target`, be called for `original` and the other way round; a
/// base class from which `target` inherits `original` is left as it is. Nothing happens where there
/// is no `original`.
void exchangeMethods(Class target, SEL original, SEL replacement);

}  // namespace launcher
