#pragma once

#include <sys/xattr.h>

#include <fstream>
#include <string>

namespace launcher {

/// The name under which the platform keeps the origin of a file that came from macOS.
#ifdef __APPLE__
inline constexpr const char* kWhereFroms = "com.apple.metadata:kMDItemWhereFroms";
#else
inline constexpr const char* kWhereFroms = "user.com.apple.metadata:kMDItemWhereFroms";
#endif

/// Makes an empty file and returns its path.
inline std::string makeFile(const std::string& path) {
  std::ofstream stream(path);
  return path;
}

/// Gives a file an attribute. False if its file system cannot keep one of that size.
inline bool setAttribute(const std::string& path, const char* name, const std::string& value) {
#ifdef __APPLE__
  return setxattr(path.c_str(), name, value.data(), value.size(), 0, 0) == 0;
#else
  return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
#endif
}

}  // namespace launcher
