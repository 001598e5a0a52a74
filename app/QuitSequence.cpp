#include "app/QuitSequence.h"

#include <csignal>

#include "process/ProcessHelpers.h"

namespace launcher {

void quitSequence(LaunchControl& launchControl, const ProcessTable& processes,
                  const SignalSender& sendSignal) {
  launchControl.terminateProc();

  const ProcessId companion = ProcessHelpers::getRunningProcess("vexwatch", processes);
  if (companion != noProcess) sendSignal(companion, SIGTERM);
}

}  // namespace launcher
