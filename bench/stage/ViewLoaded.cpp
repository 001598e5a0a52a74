// Linked into a second build of the launcher: says on the standard error stream when the view has
// loaded. The linker leads calls of the controller's operation here.

#include <iostream>

#include "bench/stage/Clock.h"
#include "controller/LauncherController.h"

namespace launcher {

void loadedOriginally(LauncherController* controller) asm(
    "__real__ZN8launcher18LauncherController11viewDidLoadEv");
void loadedTimed(LauncherController* controller) asm(
    "__wrap__ZN8launcher18LauncherController11viewDidLoadEv");

void loadedTimed(LauncherController* controller) {
  std::cerr << "loaded " << monotonicNow() << std::endl;
  loadedOriginally(controller);
}

}  // namespace launcher
