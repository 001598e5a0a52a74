"""From the press to the viewer, and the search for the server."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time

from figures import FLOOR, OURS, Figure, Unavailable, at_most_above
from project import BUILD, ROOT
from desktop.attached_image import NotAllowed, attached
from desktop.download import ORIGIN
from desktop.waiting import wait_until
from windows import APPLICATION, PROGRAM, seconds, session

STAGE = BUILD / "bench/stage"
PRESSES, RELAUNCHES, SEARCHES = 12, 5, 4
PAUSE = 1.0


def application_in(folder, *, program=None, tool=None):
    """A copy of the application with a viewer that says when it began."""
    bundle = folder / APPLICATION.name
    shutil.copytree(APPLICATION, bundle)
    shutil.copy(STAGE / "first-instruction", bundle / "Resources/bin/vexlink")
    if program is not None:
        shutil.copy(program, bundle / PROGRAM)
    if tool is not None:
        shutil.copy(tool, bundle / "Resources/bin/attached-images")
    return bundle


class Viewers:
    """What the viewers of a bundle have written."""

    def __init__(self, bundle):
        self.resources = bundle / "Resources"
        self._record = self.resources / "begun"
        self._seen = 0

    def next(self):
        """When the next one began, and its process."""
        def lines():
            found = self._record.read_text().splitlines() if self._record.exists() else []
            return found[self._seen:]

        time_begun, process = wait_until(lines, "a viewer begins")[0].split()
        self._seen += 1
        return seconds(time_begun), int(process)

    def spawn(self):
        """The floor: starts one without the launcher; how long that took."""
        program = str(self.resources / "bin/vexlink")
        asked = time.monotonic()
        process = os.posix_spawn(program, [program, "-l", "server.example", "-i", "127.0.0.1", "-r",
                                           str(self.resources)], os.environ)
        begun, _ = self.next()
        os.kill(process, 15)
        os.waitpid(process, 0)
        return begun - asked


def _gone(process):
    return not pathlib.Path(f"/proc/{process}").exists()


def presses(home):
    press, floor, again = [], [], []
    with tempfile.TemporaryDirectory() as folder:
        bundle = application_in(pathlib.Path(folder))
        viewers = Viewers(bundle)
        with session(bundle / PROGRAM, home=home) as launcher:
            launcher.type_into("vorxLocation", "https://server.example")
            launcher.type_into("ipAddress", "127.0.0.1")
            for _ in range(PRESSES):
                pressed = launcher.click("launchButton")
                begun, process = viewers.next()
                press.append(1e3 * (begun - pressed))
                os.kill(process, 15)
                wait_until(lambda: _gone(process), "the viewer has ended")
                floor.append(1e3 * viewers.spawn())
                time.sleep(0.3)
            launcher.click("launchButton")
            viewers.next()
            for _ in range(RELAUNCHES):
                time.sleep(0.3)
                pressed = launcher.click("launchButton")
                again.append(1e3 * (viewers.next()[0] - pressed))
    return [Figure("press to the viewer's first instruction, manual IP", "ms",
                   {OURS: press, FLOOR: floor}, {}, [at_most_above(2, "ms")]),
            Figure("re-launch, viewer that ends at once", "ms",
                   {OURS: again, FLOOR: [1e3 * PAUSE] * len(again)}, {}, [at_most_above(20, "ms")])]


def _run_of(tool):
    """How long a program runs, its output read."""
    start = time.monotonic()
    subprocess.run([tool, "info", "-plist"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                   check=True)
    return time.monotonic() - start


def _search(bundle, home, errors):
    """How long the location takes from the view's loading on, and what the floor is."""
    with session(bundle / PROGRAM, home=home, errors=errors) as launcher:
        shown = launcher.await_painting()
    errors.seek(0)
    loaded = [line.split()[1] for line in errors if line.startswith(b"loaded ")]
    if not loaded:
        raise Unavailable("the launcher did not say when its view had loaded")
    tool = bundle / "Resources/bin/attached-images"
    return 1e3 * (shown - seconds(loaded[0])), 1e3 * (PAUSE + _run_of(tool))


def _searches(bundle, home):
    found, floor = [], []
    for _ in range(SEARCHES):
        with tempfile.TemporaryFile() as errors:
            ours, its = _search(bundle, home, errors)
        found.append(ours)
        floor.append(its)
    return {OURS: found, FLOOR: floor}


def _figure(images, values):
    return Figure(f"found: view loaded to location shown, {images}", "ms", values, {},
                  [at_most_above(30, "ms")])


def found_in_an_image(home):
    """The real thing: an image that was mounted, and the tool that lists it."""
    with tempfile.TemporaryDirectory() as folder:
        bundle = application_in(pathlib.Path(folder), program=STAGE / "timed-launcher")
        image = pathlib.Path(folder) / "Launcher.img"
        subprocess.run([ROOT / "packaging/linux/make-image", bundle, image], check=True,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        os.setxattr(image, ORIGIN, b"https://server.example/vorx/Launcher.img")
        try:
            with attached(image) as volume:
                return [_figure("1 image", _searches(pathlib.Path(volume) / bundle.name, home))]
        except NotAllowed as reason:
            raise Unavailable(f"images cannot be attached here ({reason})") from reason


def _listing_of(image, volume, count):
    entry = ("<dict><key>image-path</key><string>{}</string><key>system-entities</key><array>"
             "<dict><key>dev-entry</key><string>/dev/loop{}</string><key>mount-point</key>"
             "<string>{}</string></dict></array></dict>")
    others = [entry.format(f"/home/me/Other {i}.img", i, f"/media/me/Other {i}")
              for i in range(count - 1)]
    return ('<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>images</key>'
            f"<array>{''.join(others)}{entry.format(image, count, volume)}</array></dict></plist>")


def found_among_many(home):
    """The application's own image is the last of fifty, listed by a stand-in for the tool."""
    with tempfile.TemporaryDirectory(dir=BUILD) as place:
        folder = pathlib.Path(place)
        bundle = application_in(folder, program=STAGE / "timed-launcher", tool=STAGE / "listing")
        image = folder / "Launcher.img"
        image.touch()
        os.setxattr(image, ORIGIN, b"https://server.example/vorx/Launcher.img")
        (bundle / "Resources/listing").write_text(_listing_of(image, folder, 50))
        return [_figure("50 images", _searches(bundle, home))]
