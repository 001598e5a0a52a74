#pragma once

#include <string>
#include <vector>

/// What window managers are told of a window, in the manner that they agree on. `display` is the
/// toolkit's X display, windows are X windows.
namespace launcher {

using XWindow = unsigned long;

/// Asks for a window to be kept above ordinary ones. After it has been asked to be mapped.
void keepAbove(void* display, XWindow window);

/// Ties a dialogue to the window that it belongs to, above which it then stays. Before it is
/// mapped.
void setTransient(void* display, XWindow dialogue, XWindow owner);

/// Names a window and the class of windows that it belongs to. Before it is mapped.
void setClass(void* display, XWindow window, std::string name);

/// Gives a window an icon: its width and its height, then its pixels row by row, each with opacity,
/// red, green and blue from the highest byte down. Nothing happens where it is empty.
void setIcon(void* display, XWindow window, const std::vector<unsigned long>& icon);

}  // namespace launcher
