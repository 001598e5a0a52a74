#pragma once

#include <functional>

#include "process/LaunchControl.h"
#include "process/ProcessTable.h"

namespace launcher {

/// Sends a signal to a process, as `kill` does. What it returns is ignored.
using SignalSender = std::function<int(ProcessId process, int signal)>;

/// What is done just before the application ends: the viewer that `launchControl` started is asked
/// to stop, then the first process that matches "vexwatch" gets SIGTERM. Waits for nothing. A
/// viewer that somebody else started goes on. Main thread.
void quitSequence(LaunchControl& launchControl, const ProcessTable& processes,
                  const SignalSender& sendSignal);

}  // namespace launcher
