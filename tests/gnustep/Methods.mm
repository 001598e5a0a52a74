#import "tests/gnustep/Methods.h"

#import <objc/runtime.h>

#include <cstdlib>

namespace launcher {

void addMissingMethods(Class target, Class donor) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(donor, &count);
  for (unsigned i = 0; i < count; ++i) {
    const SEL selector = method_getName(methods[i]);
    if ([target instancesRespondToSelector:selector]) continue;
    class_addMethod(target, selector, method_getImplementation(methods[i]),
                    method_getTypeEncoding(methods[i]));
  }
  std::free(methods);
}

void exchangeMethods(Class target, SEL original, SEL replacement) {
  const Method before = class_getInstanceMethod(target, original);
  const Method after = class_getInstanceMethod(target, replacement);
  if (before == nullptr) return;
  const bool inherited = class_addMethod(target, original, method_getImplementation(after),
                                         method_getTypeEncoding(after));
  if (inherited) {
    class_replaceMethod(target, replacement, method_getImplementation(before),
                        method_getTypeEncoding(before));
  } else {
    method_exchangeImplementations(before, after);
  }
}

}  // namespace launcher
