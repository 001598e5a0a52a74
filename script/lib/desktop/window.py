"""A window on an X display, as the window manager and the other programs see it."""

import re
import subprocess

from desktop.picture import picture_of
from desktop.waiting import wait_until


def _output(*command):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout


def press(*keys):
    """Presses keys one after another."""
    _output("xdotool", "key", "--clearmodifiers", *keys)


def type_text(text):
    _output("xdotool", "type", "--delay", "5", text)


def click(x, y):
    """Clicks at a place on the display, then moves the pointer to where no tool tip appears."""
    _output("xdotool", "mousemove", str(x), str(y), "click", "1", "mousemove", "1", "1")


def all_windows(order="_NET_CLIENT_LIST"):
    """The windows that the window manager knows, the oldest first. With `_NET_CLIENT_LIST_STACKING` the
    lowest comes first."""
    return [Window(each) for each in re.findall(r"0x[0-9a-f]+", _output("xprop", "-root", order))]


def windows_of(process):
    return [window for window in all_windows()
            if window.property("_NET_WM_PID").endswith(f" = {process}\n")]


class Window:
    def __init__(self, identifier):
        self.identifier = identifier

    def __eq__(self, other):
        return self.identifier == other.identifier

    def property(self, name):
        return _output("xprop", "-id", self.identifier, name)

    def geometry(self):
        """Left and top on the display, width and height."""
        words = _output("xwininfo", "-id", self.identifier)
        return [int(re.search(rf"{caption}:\s*(-?\d+)", words).group(1))
                for caption in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]

    def picture(self):
        return picture_of(self.identifier)

    def save_picture(self, file):
        """Writes a picture of the window with its frame to a file."""
        _output("import", "-silent", "-frame", "-window", self.identifier, str(file))

    def is_active(self):
        """Whether the window manager's own keys, such as Alt+F4, act on this window."""
        return _output("xprop", "-root", "_NET_ACTIVE_WINDOW").endswith(f" {self.identifier}\n")

    def close(self):
        """Closes the window through the window manager, as its close button does."""
        wait_until(self.is_active, "the window is the active one")
        press("alt+F4")

    def minimise(self):
        _output("xdotool", "windowminimize", str(int(self.identifier, 16)))

    def activate(self):
        """Brings the window to the front, as a click in a task bar does."""
        _output("xdotool", "windowactivate", str(int(self.identifier, 16)))
