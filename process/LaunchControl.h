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
/// Every member may be called on any thread; each is guarded against tearing, and no more: a launch
/// that is under way at quit goes on.
class LaunchControl {
 public:
  /// What the launch asks of the world. All of it must outlive the controller.
  struct Services {
    const ApplicationBundle& bundle;
    const ProcessTable& processes;
    ProgramStarter& starter;
    Sleeper& sleeper;
  };

  explicit LaunchControl(Services services);

  /// The one instance that the application uses. Made on first use from the platform's services
  /// and never destroyed, since background work may still use it while the process ends.
  static LaunchControl& sharedInstance();

  /// The viewer's executable name, "vexlink".
  static constexpr std::string_view targetProc = "vexlink";

  /// Starts RESOURCES/bin/vexlink with "-l" `location`, "-i" `ip`, "-r" RESOURCES; both texts are
  /// passed on as they come, empty ones too.
  ///
  /// Where a viewer already runs, the one that this instance started (if any) is asked to stop, and
  /// up to five waits of one second go by until the process table has lost it; then the new one is
  /// started, whether or not the old one has gone. Blocks meanwhile.
  ///
  /// Without a resource folder nothing happens. Where the viewer cannot be started, the earlier
  /// handle stays.
  void launchProc(const std::string& location, const std::string& ip);

  /// Asks the viewer that this instance started last to stop, without waiting, and forgets it.
  void terminateProc();

  /// The viewer's identifier as the window saw it when it loaded; `noProcess` until then. A launch
  /// does not change it.
  ProcessId runningAppPID() const { return runningAppPID_; }
  void setRunningAppPID(ProcessId pid) { runningAppPID_ = pid; }

  /// The viewer that this instance started last; null where there is none.
  std::shared_ptr<RunningProcess> runningProcess() const;

 private:
  /// Returns the handle that was held before, so that it is dropped outside the lock.
  std::shared_ptr<RunningProcess> replaceRunningProcess(std::shared_ptr<RunningProcess> process);
  void waitForOldViewer();
  bool viewerRuns() const;

  Services services_;
  std::atomic<ProcessId> runningAppPID_{noProcess};
  mutable std::mutex mutex_;
  std::shared_ptr<RunningProcess> runningProcess_;
};

}  // namespace launcher
