"""Programs with a window, started and driven by window-clock. Times are seconds of the monotonic
clock."""

import contextlib
import dataclasses
import os
import pathlib
import subprocess

from figures import Unavailable
from project import BUILD
from desktop.launcher import LauncherWindow

CLOCK = BUILD / "bench/stage/window-clock"
BARE_WINDOW = BUILD / "bench/stage/bare-window"
APPLICATION = BUILD / "VorxLauncher.app"
PROGRAM = "VorxLauncher"


def seconds(nanoseconds):
    return int(nanoseconds) / 1e9


@dataclasses.dataclass
class Memory:
    """In MB: what is resident, and that with what is shared divided among those who share it."""
    resident: float
    proportional: float


class Session:
    """A running program whose window is shown and painted."""

    def __init__(self, clock, greeting):
        self._clock = clock
        _, started, self.process, _, mapped, _, painted, self.window = greeting
        self.started = seconds(started)
        self.mapped, self.painted = seconds(mapped), seconds(painted)

    def ask(self, command):
        """The words of the answer to a command."""
        print(command, file=self._clock.stdin, flush=True)
        return _answer(self._clock)

    def key(self, name):
        """How long after a key was pressed the last of what it changes was painted."""
        words = self.ask(f"key {name}")
        return seconds(words[3]) - seconds(words[1])

    def click(self, control):
        """Clicks on a control of the launcher; when the button was let go of."""
        left, top, width, height = LauncherWindow(self.window).frame(control)
        return seconds(self.ask(f"click {left + width // 2} {top + height // 2}")[1])

    def type_into(self, control, text):
        """Types a text, and leaves the pointer where no explanation pops up."""
        window = LauncherWindow(self.window)
        window.click_on(control)
        window.press("ctrl+a")
        window.type(text)
        subprocess.run(["xdotool", "mousemove", "1", "1"], check=True)
        window.settled_picture()

    def await_painting(self):
        return seconds(self.ask("await")[1])

    def close(self):
        """Closes the window; how long the process went on."""
        words = self.ask("close")
        return seconds(words[3]) - seconds(words[1])

    def memory(self):
        lines = pathlib.Path(f"/proc/{self.process}/smaps_rollup").read_text().splitlines()
        sizes = {line.split(":")[0]: int(line.split()[1]) / 1024 for line in lines[1:]}
        return Memory(sizes["Rss"], sizes["Pss"])


def _answer(clock):
    words = clock.stdout.readline().split()
    if not words or words[0] == "ended":
        raise Unavailable("it ended, or showed no window")
    return words


@contextlib.contextmanager
def session(*command, home, errors=subprocess.DEVNULL, clock=CLOCK):
    """A program from its start to its end."""
    if not clock.exists():
        raise Unavailable("window-clock was not built")
    environment = {**os.environ, "HOME": str(home), "LC_ALL": "C.UTF-8", "LANGUAGE": "en"}
    running = subprocess.Popen([clock, *command], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                               stderr=errors, text=True, env=environment)
    try:
        yield Session(running, _answer(running))
    finally:
        running.stdin.close()
        running.wait()
        running.stdout.close()
