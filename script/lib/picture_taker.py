"""Drives the launcher through all it can show in a language: picture_taker.py LANGUAGE FOLDER

Run apart from the machine: it says what this machine calls some addresses, and attaches an image.
"""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from desktop.attached_image import attached
from desktop.download import ORIGIN
from desktop.launcher import PROGRAM, LauncherWindow
from desktop.waiting import wait_until
from desktop.window import Window, windows_of

BUILD = pathlib.Path(__file__).resolve().parents[2] / "build"

APPLICATION = "VorxLauncher.app"
VIEWER = "Resources/bin/vexlink"
LOCATION = "https://vorx.berlin.example"
UNKNOWN_LOCATION = "https://vorx.hamburg.example"

# So many pictures alike, taken one right after the other, show a window that is done.
STILL = 3

# Where a desktop names a locale in another way than a folder of resources/.
LOCALES = {"zh-Hans": "zh_CN"}


def know_location():
    """Lets this machine, as far as it is apart, find the location's address without asking anybody."""
    with tempfile.NamedTemporaryFile("w", prefix="hosts-", dir=BUILD) as hosts:
        print("127.0.0.1 localhost", LOCATION.removeprefix("https://"), file=hosts, flush=True)
        subprocess.run(["mount", "--bind", hosts.name, "/etc/hosts"], check=True)


@contextlib.contextmanager
def running(*command, **options):
    process = subprocess.Popen([str(word) for word in command], stdin=subprocess.DEVNULL, **options)
    try:
        yield process
    finally:
        process.terminate()
        process.wait()


def still_picture(window):
    """A window's picture, once it keeps for a while. The caret blinks more slowly."""
    pictures = []

    def still():
        pictures.append(window.picture())
        return pictures[-STILL:].count(pictures[-1]) == STILL

    wait_until(still, "the window keeps still")
    return pictures[-1]


def save(picture, file):
    """Writes a small file, with a line around the window, which has no frame here."""
    subprocess.run(["convert", "ppm:-", "-bordercolor", "#c4c4c4", "-border", "1", "+dither",
                    "-colors", "256", "-strip", "-define", "png:compression-level=9",
                    "-define", "png:exclude-chunk=date,time", f"PNG8:{file}"],
                   input=picture.ppm(), check=True)


class Photographer:
    """A running launcher, and the folder for its pictures."""

    def __init__(self, folder):
        self._folder = folder
        self.window = LauncherWindow.shown()

    def take(self, name, window=None):
        save(still_picture(window or self.window), self._folder / f"{name}.png")

    def enter(self, control, text):
        self.window.click_on(control)
        self.window.press("ctrl+a", "BackSpace")
        self.window.type(text)

    @contextlib.contextmanager
    def changing(self, control):
        """Waits, after the block, until a control shows something else than before."""
        before = still_picture(self.window).crop(*self.window.frame(control))
        yield
        wait_until(lambda: self.window.picture_of(control) != before, f"{control} changes")

    def alert(self):
        return Window(wait_until(lambda: windows_of(PROGRAM)[1:], "an alert is shown")[0])


@contextlib.contextmanager
def launcher(application, language, folder):
    locale = LOCALES.get(language, language.replace("-", "_"))
    others = {name: value for name, value in os.environ.items()
              if name != "LANGUAGE" and not name.startswith("LC_")}
    with tempfile.TemporaryDirectory(prefix="home-", dir=BUILD) as home:
        with running(application / PROGRAM,
                     env={**others, "HOME": home, "LANG": f"{locale}.UTF-8"}):
            yield Photographer(folder)


def take_typed(language, folder):
    application = BUILD / APPLICATION
    with launcher(application, language, folder) as photographer:
        photographer.take("first")
        with photographer.changing("infoLabel"):
            photographer.enter("vorxLocation", LOCATION)
        photographer.take("valid")
        with photographer.changing("infoLabel"):
            photographer.enter("ipAddress", "10.0.0")
        photographer.take("red")
        with photographer.changing("infoLabel"):
            photographer.window.type(".5")
        photographer.take("green")
        with photographer.changing("ipAddress"):
            photographer.enter("ipAddress", "")
        still_picture(photographer.window)

        # A viewer of somebody else is waited for, which keeps what the status line says meanwhile.
        with running(application / VIEWER, "-l", "", "-i", "", "-r", ""):
            Window.of("vexlink")
            with photographer.changing("infoLabel"):
                photographer.window.click_on("launchButton")
            photographer.take("looking-up")
        wait_until(lambda: not windows_of("vexlink"), "the other viewer has gone")
        Window.of("vexlink")
        photographer.take("re-launch")
        with photographer.changing("infoLabel"):
            photographer.enter("vorxLocation", "")
        photographer.take("re-launch-disabled")


def take_alert(language, folder):
    with launcher(BUILD / APPLICATION, language, folder) as photographer:
        with photographer.changing("infoLabel"):
            photographer.enter("vorxLocation", UNKNOWN_LOCATION)
        photographer.window.press("Return")
        photographer.take("alert", photographer.alert())


def take_found(language, folder):
    with tempfile.TemporaryDirectory(prefix="download-", dir=BUILD) as downloads:
        image = pathlib.Path(shutil.copy(BUILD / "VorxLauncher.img", downloads))
        os.setxattr(image, ORIGIN, f"{LOCATION}/VorxLauncher.img".encode())
        with attached(image) as volume:
            with launcher(pathlib.Path(volume) / APPLICATION, language, folder) as photographer:
                wait_until(photographer.window.has_location, "the location has been found")
                photographer.take("found")


def main(language, folder):
    know_location()
    for take in (take_typed, take_alert, take_found):
        take(language, pathlib.Path(folder))


main(*sys.argv[1:])
