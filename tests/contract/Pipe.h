#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>
#include <utility>

namespace launcher {

/// A pipe that closes itself. Not inherited across an exec.
class Pipe {
 public:
  Pipe() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) == -1) throw std::runtime_error("no pipe");
    for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
    reader_ = ends[0];
    writer_ = ends[1];
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    closeWriter();
    close(reader_);
  }

  int reader() const { return reader_; }
  int writer() const { return writer_; }

  void closeWriter() {
    if (writer_ >= 0) close(std::exchange(writer_, -1));
  }

  /// The next line without its end; shorter if the pipe's other side has closed.
  std::string line() const {
    std::string text;
    for (char c = 0; read(reader_, &c, 1) == 1 && c != '\n';) text += c;
    return text;
  }

  /// Everything that comes until every writer has closed. Closes this pipe's own writer first.
  std::string all() {
    closeWriter();
    std::string text;
    for (char c = 0; read(reader_, &c, 1) == 1;) text += c;
    return text;
  }

 private:
  int reader_ = -1;
  int writer_ = -1;
};

}  // namespace launcher
