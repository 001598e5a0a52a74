#include "net/SocketLength.h"

#include <limits>

#include "base/FatalError.h"

namespace launcher {

socklen_t socketLength(std::size_t bytes) {
  if (bytes > std::numeric_limits<socklen_t>::max()) {
    fatalError("address too long", "SocketLength", __LINE__);
  }
  return static_cast<socklen_t>(bytes);
}

}  // namespace launcher
