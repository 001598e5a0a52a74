#pragma once

#include <functional>

#include "process/LaunchControl.h"
#include "process/ProcessTable.h"

namespace launcher {

/// Sends a signal to a process, as `kill` does. The result is ignored.
using SignalSender = std::function<int(ProcessId process, int signal)>;

/// Runs just before the application ends. Asks the viewer that `launchControl` started to stop,
/// then sends SIGTERM to the first process that matches "vexwatch". Waits for neither, and leaves a
/// viewer that somebody else started running. Main thread.
void quitSequence(LaunchControl& launchControl, const ProcessTable& processes,
                  const SignalSender& sendSignal);

}  // namespace launcher
