#pragma once

#include <QSocketNotifier>
#include <optional>

namespace launcher {

/// Makes the signals that ask a program to end (SIGTERM, SIGINT and SIGHUP) end the event loop
/// instead of the process.
class QuitSignals {
 public:
  /// Blocks the signals in this thread and in those that it starts later. Construct it before any
  /// thread starts.
  QuitSignals();

  /// Ends the event loop when a signal comes, or has come already. Call it once the application
  /// exists.
  void watch();

 private:
  int descriptor_;
  std::optional<QSocketNotifier> notifier_;
};

}  // namespace launcher
