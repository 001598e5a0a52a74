"""A window on an X display, found, looked at and driven as a person would."""

import re
import subprocess

from stage.picture import picture_of
from stage.waiting import wait_until


def _output(*command):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout


def _numbers(text, *captions):
    return [int(re.search(rf"{caption}:\s*(-?\d+)", text).group(1)) for caption in captions]


def windows_of(program):
    """The identifiers of the windows that a program shows and that can be closed."""
    shown = _output("xdotool", "search", "--onlyvisible", "--classname", f"^{program}$").split()
    return [window for window in shown
            if "WM_DELETE_WINDOW" in _output("xprop", "-id", window, "WM_PROTOCOLS")]


class Window:
    """One window; places in it are measured from its top left."""

    def __init__(self, identifier):
        self.identifier = identifier
        geometry = _output("xwininfo", "-id", identifier)
        self.left, self.top, self.width, self.height = _numbers(
            geometry, "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")

    @classmethod
    def of(cls, program):
        """The one window of a program, as soon as it is shown."""
        shown = wait_until(lambda: windows_of(program), f"{program} shows its window")
        return cls(shown[0])

    def picture(self):
        return picture_of(self.identifier)

    def settled_picture(self):
        """The window's picture once it no longer changes."""
        seen = [self.picture()]

        def settled():
            seen.append(self.picture())
            return seen[-1] == seen[-2]

        wait_until(settled, "the window's picture is settled")
        return seen[-1]

    def states(self):
        """What the window manager says of the window."""
        return _output("xprop", "-id", self.identifier, "_NET_WM_STATE")

    def click(self, x, y):
        _output("xdotool", "mousemove", str(self.left + x), str(self.top + y), "click", "1")

    def press(self, *keys):
        _output("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text):
        _output("xdotool", "type", "--delay", "5", text)

    def close(self):
        """Closes the window through the window manager, as its close button does."""
        self.press("alt+F4")
