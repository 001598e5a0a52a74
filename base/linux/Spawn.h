#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace launcher {

/// A child process of this program.
///
/// It is reaped as soon as it ends, and is never signalled afterwards. A child whose handle is
/// dropped runs on and is still reaped. Any thread.
class SpawnedChild {
 public:
  virtual ~SpawnedChild() = default;

  /// Asks the child to stop (SIGTERM). Does nothing once it has ended.
  virtual void terminate() = 0;

  /// Blocks until the child has ended and been reaped.
  virtual void waitUntilExit() = 0;
};

struct SpawnOptions {
  std::string path;                         ///< the executable; no search along PATH
  std::vector<std::string> arguments = {};  ///< without the program's own name; cut at a NUL
  int output = -1;                          ///< descriptor for both output streams; -1: inherited
  std::function<void()> onExit = {};  ///< runs once on a thread of its own, after the reaping;
                                      ///< must not throw
};

/// Starts a program. It inherits the environment and the three standard descriptors only; it starts
/// with no signal blocked and none ignored. Any thread.
///
///     spawn({.path = "/bin/sleep", .arguments = {"5"}})->waitUntilExit();
///
/// Null if the program cannot be started (missing, not executable, no process, thread or memory
/// left). Then nothing runs and `onExit` is never called.
std::shared_ptr<SpawnedChild> spawn(SpawnOptions options);

}  // namespace launcher
