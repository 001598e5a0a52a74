"""Programs with a window, driven and timed on an X display. Times are seconds of the monotonic clock.

A window counts as painted when nothing more is painted for a while. Anything as narrow as a caret
does not count.
"""

import contextlib
import os
import pathlib
import select
import signal
import subprocess
import time

from Xlib import XK, X, display, error
from Xlib.ext import damage, xtest
from Xlib.protocol.event import ClientMessage

from table import Unavailable

QUIET = 0.25  # a caret blinks more slowly
PATIENCE = 30
CARET_WIDTH = 16  # including what a toolkit paints around it
BUILD = pathlib.Path(__file__).resolve().parents[2] / "build"
APPLICATION = BUILD / "VorxLauncher.app"
PROGRAM = "VorxLauncher"
BARE_WINDOW = BUILD / "bench/bare-window"


class Session:
    """A running program with a window."""

    def __init__(self, command, home):
        self._display = display.Display()
        self._display.set_error_handler(lambda *_: None)  # a window may have gone meanwhile
        self._root = self._display.screen().root
        self._display.damage_query_version()  # the server answers nothing without it
        self._root.damage_create(damage.DamageReportRawRectangles)
        self._display.sync()
        self._paintings = []
        self._window = None
        environment = {**os.environ, "HOME": str(home), "LC_ALL": "C.UTF-8", "LANGUAGE": "en"}
        silence = [(os.POSIX_SPAWN_OPEN, descriptor, os.devnull, os.O_RDWR, 0) for descriptor in range(3)]
        self.started = time.monotonic()
        self._process = os.posix_spawnp(str(command[0]), [str(word) for word in command], environment,
                                        file_actions=silence)
        self._ended = os.pidfd_open(self._process)

    def await_painting(self):
        """Waits for the window and gives the time when it was last painted."""
        self._await(self._last_painting)
        return self._last_painting()

    def await_next_painting(self):
        self._paintings.clear()
        return self.await_painting()

    def press(self, key):
        """Presses a key, given by X's name for it, and returns the time."""
        code = self._display.keysym_to_keycode(XK.string_to_keysym(key))
        self._paintings.clear()
        pressed = time.monotonic()
        xtest.fake_input(self._display, X.KeyPress, code)
        xtest.fake_input(self._display, X.KeyRelease, code)
        self._display.flush()
        return pressed

    def key(self, name):
        """The time from pressing a key to the last painting that it causes."""
        pressed = self.press(name)
        return self.await_painting() - pressed

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "5", text], check=True)
        self._await(lambda: True)

    def resident_megabytes(self):
        lines = pathlib.Path(f"/proc/{self._process}/smaps_rollup").read_text().splitlines()
        return next(int(line.split()[1]) / 1024 for line in lines if line.startswith("Rss:"))

    def close(self):
        """Closes the window as a window manager does. Returns the time until the process ended."""
        atom = self._display.intern_atom
        message = ClientMessage(window=self._window, client_type=atom("WM_PROTOCOLS"),
                                data=(32, [atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
        asked = time.monotonic()
        self._window.send_event(message)
        self._display.flush()
        if not select.select([self._ended], [], [], PATIENCE)[0]:
            raise Unavailable("it does not end")
        return time.monotonic() - asked

    def end(self):
        with contextlib.suppress(ProcessLookupError):
            os.kill(self._process, signal.SIGTERM)
        if not select.select([self._ended], [], [], PATIENCE)[0]:
            os.kill(self._process, signal.SIGKILL)
        os.waitpid(self._process, 0)
        os.close(self._ended)
        self._display.close()

    def _await(self, condition):
        """Waits until the condition holds and nothing has been painted for a while."""
        begun = time.monotonic()
        while time.monotonic() < begun + PATIENCE:
            last = max([begun] + [painted for painted, _ in self._paintings[-1:]])
            left = last + QUIET - time.monotonic()
            if left <= 0 and condition():
                return
            ready, _, _ = select.select([self._display, self._ended], [], [], left if left > 0 else QUIET)
            self._take_events(time.monotonic())
            if self._ended in ready:
                raise Unavailable("it ended")
        raise Unavailable("it shows no window, or nothing new in it")

    def _take_events(self, now):
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == self._display.extension_event.DamageNotify:
                self._paintings.append((now, event.area))

    def _last_painting(self):
        """When the window was last painted; None if it has not been painted yet."""
        self._window = self._window or self._managed_window()
        if self._window is None:
            return None
        with contextlib.suppress(error.BadWindow, error.BadDrawable):
            size = self._window.get_geometry()
            place = self._root.translate_coords(self._window, 0, 0)
            return next((painted for painted, area in reversed(self._paintings)
                         if area.width > CARET_WIDTH and
                         place.x < area.x + area.width and area.x < place.x + size.width and
                         place.y < area.y + area.height and area.y < place.y + size.height), None)
        return None

    def _managed_window(self):
        """The first window that the window manager manages and that can be closed."""
        windows = self._root.get_full_property(self._display.intern_atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        for identifier in windows.value if windows else []:
            window = self._display.create_resource_object("window", identifier)
            with contextlib.suppress(error.BadWindow):
                if (window.get_attributes().map_state == X.IsViewable and
                        self._display.intern_atom("WM_DELETE_WINDOW") in window.get_wm_protocols()):
                    return window
        return None


@contextlib.contextmanager
def session(*command, home):
    """Runs a program during the block. Gives the session and the time of its first painting."""
    try:
        running = Session(command, home)
    except FileNotFoundError as missing:
        raise Unavailable("not installed") from missing
    try:
        yield running, running.await_painting()
    finally:
        running.end()
