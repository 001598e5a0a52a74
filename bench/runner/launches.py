"""From the press to the viewer, and the search for the server."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

from desktop.attached_image import NotAllowed, attached
from desktop.download import ORIGIN
from desktop.waiting import wait_until
from starts import IMAGE
from table import FLOOR, OURS, Figure, Unavailable, at_most_above
from windows import APPLICATION, BARE_WINDOW, BUILD, PROGRAM, session

PRESSES, RELAUNCHES, SEARCHES = 12, 5, 4
PAUSE = 1.0  # before a search, and before looking whether a viewer has stopped


class Viewers:
    """The times that a bundle's viewers write when they start."""

    def __init__(self, bundle):
        self.resources = bundle / "Resources"
        self._record = self.resources / "begun"
        self._seen = 0

    def next(self):
        """The start time and the process of the next viewer."""
        def lines():
            found = self._record.read_text().splitlines() if self._record.exists() else []
            return found[self._seen:]

        begun, process = wait_until(lines, "a viewer begins")[0].split()
        self._seen += 1
        return int(begun) / 1e9, int(process)

    def spawn(self):
        """The floor: starts a viewer without the launcher and returns the time that it took."""
        program = str(self.resources / "bin/vexlink")
        asked = time.monotonic()
        process = os.posix_spawn(program, [program, "-l", "server.example", "-i", "127.0.0.1", "-r",
                                           str(self.resources)], os.environ)
        begun, _ = self.next()
        os.kill(process, signal.SIGTERM)
        os.waitpid(process, 0)
        return begun - asked


def presses(home):
    press, floor, again = [], [], []
    with tempfile.TemporaryDirectory() as folder:
        bundle = pathlib.Path(folder) / APPLICATION.name
        shutil.copytree(APPLICATION, bundle, symlinks=True)
        shutil.copy(BUILD / "bench/first-instruction", bundle / "Resources/bin/vexlink")
        viewers = Viewers(bundle)
        with session(bundle / PROGRAM, home=home) as (launcher, _):
            launcher.type("https://server.example\t127.0.0.1")
            for _ in range(PRESSES):
                pressed = launcher.press("Return")
                begun, process = viewers.next()
                press.append(1e3 * (begun - pressed))
                launcher.await_painting()
                os.kill(process, signal.SIGTERM)
                wait_until(lambda: not os.path.exists(f"/proc/{process}"), "the viewer has ended")
                floor.append(1e3 * viewers.spawn())
            launcher.press("Return")
            viewers.next()
            for _ in range(RELAUNCHES):
                launcher.await_painting()
                pressed = launcher.press("Return")
                again.append(1e3 * (viewers.next()[0] - pressed))
    return [Figure("press to the viewer's first instruction, manual IP", "ms", {OURS: press, FLOOR: floor},
                   [at_most_above(2, "ms")]),
            Figure("re-launch, viewer that ends at once", "ms",
                   {OURS: again, FLOOR: [1e3 * PAUSE] * len(again)}, [at_most_above(20, "ms")])]


def run_of(tool):
    """The time that a program runs while its output is read."""
    begun = time.monotonic()
    subprocess.run([tool, "info", "-plist"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True)
    return time.monotonic() - begun


def found(home):
    """Mounts a real image and lets the real tool list it."""
    ours, floor = [], []
    with tempfile.TemporaryDirectory() as folder:
        image = shutil.copy(IMAGE, folder)
        os.setxattr(image, ORIGIN, b"https://server.example/vorx/VorxLauncher.img")
        try:
            with attached(image) as volume:
                bundle = pathlib.Path(volume) / APPLICATION.name
                for _ in range(SEARCHES):
                    with session(BARE_WINDOW, home=home) as (bare, painted):
                        least = painted - bare.started
                    with session(bundle / PROGRAM, home=home) as (launcher, _):
                        ours.append(1e3 * (launcher.await_next_painting() - launcher.started))
                    floor.append(1e3 * (least + PAUSE + run_of(bundle / "Resources/bin/attached-images")))
        except NotAllowed as reason:
            raise Unavailable(f"images cannot be attached here ({reason})") from reason
    return [Figure("start to found location shown", "ms", {OURS: ours, FLOOR: floor},
                   [at_most_above(30, "ms")])]
