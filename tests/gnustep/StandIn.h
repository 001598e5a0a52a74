#pragma once

namespace launcher {

// The parts of the stand-in, each in the file of its name. Call each once, before any window is
// made.
void installEventQueue();
void installLayers();
void installLayoutReading();
void installOperationQueues();
void installUndo();
void installViewLifecycle();

}  // namespace launcher
