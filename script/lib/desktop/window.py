"""A window on an X display, found, looked at and driven as a person would."""

import re
import subprocess

from desktop.picture import picture_of
from desktop.waiting import wait_until


def _output(*command):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout


def windows_of(program):
    """The identifiers of a program's windows that the window manager shows, the oldest first."""
    managed = re.findall(r"0x[0-9a-f]+", _output("xprop", "-root", "_NET_CLIENT_LIST"))
    return [window for window in managed
            if f'"{program}"' in _output("xprop", "-id", window, "WM_CLASS")]


class Window:
    """One window; places in it are measured from its top left."""

    def __init__(self, identifier):
        self.identifier = identifier

    @classmethod
    def of(cls, program):
        """The first window of a program, as soon as it is shown and stays as it is."""
        shown = wait_until(lambda: windows_of(program), f"{program} shows its window")
        window = cls(shown[0])
        window.settled_picture()
        return window

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

    def settled_picture(self):
        """The window's picture once it no longer changes."""
        seen = [(self.geometry(), self.picture())]

        def settled():
            seen.append((self.geometry(), self.picture()))
            return seen[-1] == seen[-2]

        wait_until(settled, "the window's picture is settled")
        return seen[-1][1]

    def states(self):
        """What the window manager says of the window."""
        return _output("xprop", "-id", self.identifier, "_NET_WM_STATE")

    def click(self, x, y):
        left, top, _, _ = self.geometry()
        _output("xdotool", "mousemove", str(left + x), str(top + y), "click", "1")

    def press(self, *keys):
        _output("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text):
        _output("xdotool", "type", "--delay", "5", text)

    def close(self):
        """Closes the window through the window manager, as its close button does."""
        self.press("alt+F4")
