#import <Foundation/Foundation.h>

#include <climits>
#include <cstdlib>

#include "base/ApplicationBundle.h"

namespace launcher {
namespace {

std::string realPath(NSString* path) {
  const char* given = [path fileSystemRepresentation];
  char resolved[PATH_MAX];
  return realpath(given, resolved) != nullptr ? resolved : given;
}

class MainBundle : public ApplicationBundle {
 public:
  std::string path() const override {
    @autoreleasepool {
      return realPath([[NSBundle mainBundle] bundlePath]);
    }
  }

  std::optional<std::string> resourcePath() const override {
    @autoreleasepool {
      NSString* path = [[NSBundle mainBundle] resourcePath];
      if (path == nil) return std::nullopt;
      return realPath(path);
    }
  }
};

}  // namespace

std::unique_ptr<ApplicationBundle> makeApplicationBundle() {
  return std::make_unique<MainBundle>();
}

}  // namespace launcher
