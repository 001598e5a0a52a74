#pragma once

// Extended attributes with macOS's arguments. Linux wants a name space in front of the name.

#include_next <sys/xattr.h>

#include <cstdint>
#include <string>

inline ssize_t getxattr(const char* path, const char* name, void* value, std::size_t size,
                        std::uint32_t /*position*/, int /*options*/) {
  return getxattr(path, ("user." + std::string(name)).c_str(), value, size);
}
