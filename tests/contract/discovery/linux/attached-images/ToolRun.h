#pragma once

#include <string>

#include "base/linux/Spawn.h"
#include "tests/contract/Pipe.h"

namespace launcher {

/// What the listing tool prints, both streams joined, and how it ends.
struct ToolRun {
  std::string output;
  int status = -1;
};

/// Runs the tool through a shell, so that a test can redirect its output. `before` is what the
/// shell does first, in the same command.
///
///     runTool("--help >/dev/full")
///     runTool("info -plist", "timeout 60")
inline ToolRun runTool(const std::string& arguments, const std::string& before = "") {
  const std::string command = before + " '" ATTACHED_IMAGES "' " + arguments;
  Pipe pipe;
  const auto child = spawn({.path = "/bin/sh",
                            .arguments = {"-c", command + "; echo \"status $?\""},
                            .output = pipe.writer()});
  ToolRun run{pipe.all()};
  const std::size_t status = run.output.rfind("status ");
  run.status = std::stoi(run.output.substr(status + 7));
  run.output.resize(status);
  return run;
}

/// Lists the images where one more thing is mounted, which only the tool sees.
///
///     runToolBeside("-t tmpfs none /sys")
inline ToolRun runToolBeside(const std::string& mount) {
  return runTool("info -plist", "unshare --mount sh -c 'mount " + mount + " && exec \"$@\"' sh");
}

}  // namespace launcher
