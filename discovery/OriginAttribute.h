#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace launcher {

/// The file attribute that records a download's origin: a property list with an array of texts. The
/// first text is the address that the file came from.
class OriginAttribute {
 public:
  virtual ~OriginAttribute() = default;

  /// Works like `getxattr`. Without a buffer (null, 0) it returns the attribute's size in bytes;
  /// with one, the number of bytes written. It returns -1 on any failure: no such file or
  /// attribute, a buffer that is too small. It follows symbolic links. It may block for seconds
  /// while it asks the desktop; any thread but the main one.
  virtual std::ptrdiff_t read(const std::string& path, std::byte* buffer,
                              std::size_t size) const = 0;
};

std::unique_ptr<OriginAttribute> makeOriginAttribute();

}  // namespace launcher
