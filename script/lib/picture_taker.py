"""Takes a picture of each of the launcher's states in a language: picture_taker.py LANGUAGE FOLDER

Run it apart from the machine: it changes the machine's host names and attaches an image.
"""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from desktop import screen_reader
from desktop.attached_image import attached
from desktop.download import ORIGIN
from desktop.launcher import LOOKING_UP, NO_URL, PROGRAM, READY, RUNNING_READY, Launcher
from desktop.waiting import wait_until
from desktop.window import all_windows, press, type_text, windows_of

BUILD = pathlib.Path(__file__).resolve().parents[2] / "build"
APPLICATION = BUILD / "VorxLauncher.app"
VIEWER = APPLICATION / "Resources/bin/vexlink"
LOCATION = "https://vorx.berlin.example"
UNKNOWN_LOCATION = "https://vorx.hamburg.example"

# This many equal pictures in a row mean that the window has finished painting.
STILL = 3

# The locales whose names differ from the folders in resources/.
LOCALES = {"zh-Hans": "zh_CN"}


def know_location():
    """Writes the location's address into the host names, so that no name server is needed."""
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
    """A window's picture, once it stays the same for a while. The caret blinks more slowly."""
    pictures = []

    def still():
        pictures.append(window.picture())
        return pictures[-STILL:].count(pictures[-1]) == STILL

    wait_until(still, "the window keeps still")
    return pictures[-1]


def save(picture, file):
    """Writes the picture to a small file. Adds a border, since the window has no frame here."""
    subprocess.run(["convert", "ppm:-", "-bordercolor", "#c4c4c4", "-border", "1", "+dither",
                    "-colors", "256", "-strip", "-define", "png:compression-level=9",
                    "-define", "png:exclude-chunk=date,time", f"PNG8:{file}"],
                   input=picture.ppm(), check=True)


class Photographer(Launcher):
    """A running launcher, and the folder for its pictures."""

    def __init__(self, process, language, folder):
        super().__init__(process, language)
        self._folder = folder

    def take(self, name, window):
        save(still_picture(window), self._folder / f"{name}.png")

    def take_in(self, status, name):
        self.wait_for_status(status)
        self.on_display.activate()
        self.wait_until_active()
        self.take(name, self.on_display)


@contextlib.contextmanager
def photographer(application, language, folder):
    locale = LOCALES.get(language, language.replace("-", "_"))
    others = {name: value for name, value in os.environ.items()
              if name != "LANGUAGE" and not name.startswith("LC_")}
    with tempfile.TemporaryDirectory(prefix="home-", dir=BUILD) as home:
        environment = {**others, **screen_reader.ENVIRONMENT, "HOME": home, "LANG": f"{locale}.UTF-8"}
        with running(application / PROGRAM, env=environment) as process:
            yield Photographer(process, language, folder)


def take_typed(language, folder):
    with photographer(APPLICATION, language, folder) as launcher:
        launcher.take_in(NO_URL, "first")
        launcher.enter(launcher.location, LOCATION)
        launcher.take_in(READY, "valid")
        launcher.enter(launcher.address, "10.0.0")
        launcher.take_in(NO_URL, "red")
        type_text(".5")
        launcher.take_in(READY, "green")
        press("ctrl+a", "BackSpace")
        launcher.wait_until(lambda: launcher.address.text == "", "the address is empty")

        # The launcher waits for a viewer that it did not start. Until then the status line stays.
        with running(VIEWER, "-l", "", "-i", "", "-r", "") as other:
            wait_until(lambda: windows_of(other.pid), "the other viewer is shown")
            launcher.click_on(launcher.button)
            launcher.take_in(LOOKING_UP, "looking-up")
        wait_until(lambda: len(all_windows()) == 2, "the launcher's own viewer is shown")
        launcher.take_in(RUNNING_READY, "re-launch")
        launcher.enter(launcher.location, "")
        launcher.take_in(NO_URL, "re-launch-disabled")


def take_alert(language, folder):
    with photographer(APPLICATION, language, folder) as launcher:
        launcher.enter(launcher.location, UNKNOWN_LOCATION)
        launcher.wait_for_status(READY)
        press("Return")
        launcher.wait_for_alert()
        launcher.take("alert", windows_of(launcher.process.pid)[1])


def take_found(language, folder):
    with tempfile.TemporaryDirectory(prefix="download-", dir=BUILD) as downloads:
        image = pathlib.Path(shutil.copy(BUILD / "VorxLauncher.img", downloads))
        os.setxattr(image, ORIGIN, f"{LOCATION}/VorxLauncher.img".encode())
        with attached(image) as volume:
            application = pathlib.Path(volume) / APPLICATION.name
            with photographer(application, language, folder) as launcher:
                launcher.wait_for_location()
                launcher.take_in(READY, "found")


def main(language, folder):
    know_location()
    for take in (take_typed, take_alert, take_found):
        take(language, pathlib.Path(folder))


main(*sys.argv[1:])
