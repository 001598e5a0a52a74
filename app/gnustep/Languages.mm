// The toolkit finds the person's languages through the C library, which knows only those whose
// locales are installed, and looks for Brazil's Portuguese under another name.

#import <Foundation/Foundation.h>

#import "app/gnustep/AppKitLikeness.h"

#include "app/desktop/Languages.h"

namespace launcher {

void registerLanguages() {
  NSMutableArray* const languages = [NSMutableArray array];
  for (const auto& language : preferredLanguages(localeVariables())) {
    [languages addObject:[NSString stringWithUTF8String:language.c_str()]];
  }
  [NSUserDefaults setUserLanguages:languages];
}

}  // namespace launcher
