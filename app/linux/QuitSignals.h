#pragma once

#include <QSocketNotifier>
#include <optional>

namespace launcher {

/// The signals that ask the program to end: SIGTERM, SIGINT and SIGHUP. They leave the event loop,
/// as its other events do, instead of ending the process.
class QuitSignals {
 public:
  /// Holds the signals back from now on, in this thread and those that it starts later. To be made
  /// before any thread is.
  QuitSignals();

  /// Has the application's event loop end when one comes, or has come already. Once the
  /// application exists.
  void watch();

 private:
  int descriptor_;
  std::optional<QSocketNotifier> notifier_;
};

}  // namespace launcher
