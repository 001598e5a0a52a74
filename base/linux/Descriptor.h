#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace launcher {

/// A file descriptor that closes itself and preserves `errno`. -1 means none.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    const int error = errno;
    if (isOpen()) close(number_);
    errno = error;
  }

  bool isOpen() const { return number_ != -1; }
  int number() const { return number_; }

 private:
  int number_;
};

/// Owns the descriptor that a system call returned. Throws `std::system_error` if the call failed.
inline Descriptor opened(int number) {
  if (number == -1) throw std::system_error(errno, std::generic_category());
  return Descriptor(number);
}

/// The two ends of a pipe, which no child inherits.
struct PipeEnds {
  Descriptor readEnd;
  Descriptor writeEnd;

  /// Throws `std::system_error` if no descriptors are left.
  static PipeEnds make() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) == -1) {
      throw std::system_error(errno, std::generic_category());
    }
    return {Descriptor(ends[0]), Descriptor(ends[1])};
  }
};

}  // namespace launcher
