#include "discovery/OriginAttribute.h"

#include <sys/xattr.h>

namespace launcher {
namespace {

class WhereFroms : public OriginAttribute {
 public:
  std::ptrdiff_t read(const std::string& path, std::byte* buffer, std::size_t size) const override {
    return getxattr(path.c_str(), "com.apple.metadata:kMDItemWhereFroms", buffer, size, 0, 0);
  }
};

}  // namespace

std::unique_ptr<OriginAttribute> makeOriginAttribute() { return std::make_unique<WhereFroms>(); }

}  // namespace launcher
