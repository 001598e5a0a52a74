#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "base/ApplicationBundle.h"
#include "base/Sleeper.h"
#include "process/ProcessTable.h"
#include "process/ProgramStarter.h"

namespace launcher {

/// Starts the viewer and stops the one that it started before.
///
/// Any thread. Each call is thread-safe by itself; sequences of calls are not: a launch that is
/// under way at quit goes on.
class LaunchControl {
 public:
  /// What a launch needs from the platform. All of it must outlive the controller.
  struct Services {
    const ApplicationBundle& bundle;
    const ProcessTable& processes;
    ProgramStarter& starter;
    Sleeper& sleeper;
  };

  explicit LaunchControl(Services services);

  /// The application's one instance. The first use makes it from the platform's services. It is
  /// never destroyed, since background work may still use it while the process ends.
  static LaunchControl& sharedInstance();

  /// The viewer's executable name, "vexlink".
  static constexpr std::string_view targetProc = "vexlink";

  /// Starts RESOURCES/bin/vexlink with "-l" `location`, "-i" `ip`, "-r" RESOURCES. Passes both
  /// texts on unchanged, even empty ones.
  ///
  /// If a viewer already runs, first asks the viewer that this instance started (if any) to stop.
  /// Then waits up to five times for one second, until the process table shows no viewer, and
  /// starts the new one in either case. Blocks meanwhile.
  ///
  /// Does nothing without a resource folder. Keeps the earlier handle if the viewer cannot be
  /// started.
  void launchProc(const std::string& location, const std::string& ip);

  /// Asks the viewer that this instance started last to stop, without waiting, and forgets it.
  void terminateProc();

  /// The viewer's identifier when the window loaded; `noProcess` until then. A launch does not
  /// change it.
  ProcessId runningAppPID() const { return runningAppPID_; }
  void setRunningAppPID(ProcessId pid) { runningAppPID_ = pid; }

  /// The viewer that this instance started last, or null.
  std::shared_ptr<RunningProcess> runningProcess() const;

 private:
  /// Drops the previous handle outside the lock.
  void replaceRunningProcess(std::shared_ptr<RunningProcess> process);
  void waitForOldViewer();
  bool viewerRuns() const;

  Services services_;
  std::atomic<ProcessId> runningAppPID_{noProcess};
  mutable std::mutex mutex_;
  std::shared_ptr<RunningProcess> runningProcess_;
};

}  // namespace launcher
