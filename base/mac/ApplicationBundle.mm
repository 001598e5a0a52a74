#include "base/ApplicationBundle.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

class MainBundle : public ApplicationBundle {
 public:
  std::string path() const override {
    @autoreleasepool {
      return toStdString([[NSBundle mainBundle] bundlePath]);
    }
  }

  std::optional<std::string> resourcePath() const override {
    @autoreleasepool {
      NSString* path = [[NSBundle mainBundle] resourcePath];
      if (path == nil) return std::nullopt;
      return toStdString(path);
    }
  }
};

}  // namespace

std::unique_ptr<ApplicationBundle> makeApplicationBundle() {
  return std::make_unique<MainBundle>();
}

}  // namespace launcher
