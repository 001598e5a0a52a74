#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace launcher {

/// The attribute in which a file's download origin is recorded: a property list holding an array
/// of texts, the first of them the address that the file came from.
class OriginAttribute {
 public:
  virtual ~OriginAttribute() = default;

  /// In the manner of `getxattr`: without a buffer (null, 0) the attribute's size in bytes; with
  /// one, the number of bytes written to it. -1 on any failure: no such file or attribute, a
  /// buffer that is too small. Symbolic links are followed. May block for seconds where the desktop
  /// has to be asked; any thread but the main one.
  virtual std::ptrdiff_t read(const std::string& path, std::byte* buffer,
                              std::size_t size) const = 0;
};

std::unique_ptr<OriginAttribute> makeOriginAttribute();

}  // namespace launcher
