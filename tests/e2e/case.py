"""What the end-to-end tests share: the launcher as a person meets it, and nothing left afterwards."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import doubles
import reading
from desktop.attached_image import NotAllowed, attached
from desktop.download import download, served
from desktop.failure import Failure
from desktop.launcher import LauncherWindow
from desktop.processes import adopt_orphans, descendants, end_descendants, none_left
from desktop.waiting import wait_until
from desktop.window import Window, windows_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
APPLICATION = "VorxLauncher.app"
PROGRAM = "VorxLauncher"

NO_URL = "Enter valid Vorx location to enable launch button"
READY = "Press launch button to start remote control"
RUNNING_READY = "Press launch button to re-start remote control"
LOOKING_UP = "Looking up IP Address for the Vorx"
STATUS_TEXTS = [NO_URL, READY, RUNNING_READY, LOOKING_UP]

WHITE, GREEN, RED = (255, 255, 255), (0, 255, 0), (255, 0, 0)


class LauncherTest(unittest.TestCase):
    """A test with a copy of the application that holds a recording viewer."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        adopt_orphans()

    def setUp(self):
        if doubles.running("vexlink") or doubles.running("vexwatch"):
            self.skipTest("a viewer or its companion runs here already")
        self.stack = contextlib.ExitStack()
        self.addCleanup(self.stack.close)
        self.addCleanup(self.assert_nothing_left)
        self.folder = pathlib.Path(
            self.stack.enter_context(tempfile.TemporaryDirectory(prefix="e2e-", dir=BUILD)))
        self.record = doubles.Record(self.folder / "record")
        self.application = self.folder / APPLICATION
        shutil.copytree(BUILD / APPLICATION, self.application)
        self.put_viewer_in_place()

    # What is set up.

    @property
    def viewer(self):
        return self.application / "Resources/bin/vexlink"

    def put_viewer_in_place(self):
        shutil.copy(doubles.DOUBLE, self.viewer)

    def mounted_application(self):
        """The application in the volume of a downloaded image, and where that was downloaded."""
        image = self.folder / "VorxLauncher.img"
        subprocess.run([ROOT / "packaging/linux/make-image", self.application, image], check=True,
                       stdout=subprocess.DEVNULL)
        address = self.stack.enter_context(served(image))
        downloads = self.folder / "downloads"
        downloads.mkdir()
        try:
            volume = self.stack.enter_context(attached(download(address, downloads)))
        except NotAllowed as reason:
            self.skipTest(f"images cannot be attached here: {reason}")
        return pathlib.Path(volume) / APPLICATION, address

    def start(self, program=None, *arguments, folder=None, language="en", locale="C.UTF-8",
              environment=None):
        """Starts the launcher and waits for its window."""
        self.launcher = subprocess.Popen(
            [str(program or self.application / PROGRAM), *arguments], cwd=folder,
            stdin=subprocess.DEVNULL,
            env={**os.environ, "HOME": str(self.folder), "LC_ALL": locale, "LANGUAGE": language,
                 "RECORD": str(self.record.file), **(environment or {})})
        self.addCleanup(self.end, self.launcher)
        self.window = LauncherWindow.shown()
        self.disabled_button = self.settled("launchButton")

    def start_double(self, name):
        double = doubles.start(name, self.record, self.folder)
        self.addCleanup(double.wait)
        self.addCleanup(double.terminate)
        return double.pid

    # What is done.

    def enter(self, control, text):
        """Types a text into a field, in the place of what is there."""
        self.window.click_on(control)
        self.window.press("ctrl+a")
        self.window.type(text)

    def enter_valid(self):
        """Types a location, and an address so that nothing is looked up."""
        self.enter("vorxLocation", "https://server.example")
        self.enter("ipAddress", "10.0.0.5")

    def press_launch(self):
        self.window.click_on("launchButton")

    def quit(self):
        """Closes the window and waits for the launcher to end."""
        self.window.close()
        self.assertEqual(self.launcher.wait(timeout=60), 0)

    # What is seen.

    def settled(self, control):
        return self.window.settled_picture().crop(*self.window.frame(control))

    def status(self):
        return reading.nearest(reading.read(self.window.picture_of("infoLabel")), STATUS_TEXTS)

    def wait_for_status(self, text):
        wait_until(lambda: self.status() == text, f"the status line says '{text}'")

    def wait_for_location(self):
        wait_until(self.window.has_location, "the location has been found")

    def button_title(self, language="eng"):
        left, top, width, height = self.window.frame("launchButton")
        inside = self.window.picture().crop(left + 20, top + 6, width - 40, height - 12)
        return reading.read(inside, language)

    def assert_button_disabled(self):
        self.assertEqual(self.settled("launchButton"), self.disabled_button)

    def ip_colour(self):
        """The colour of the IP field, at a place where no text is."""
        left, top, width, height = self.window.frame("ipAddress")
        return self.window.picture().pixel(left + width - 10, top + height // 2)

    def wait_for_ip_colour(self, colour):
        wait_until(lambda: self.ip_colour() == colour, f"the IP field's colour is {colour}")

    def wait_for_alert(self):
        def alert():
            return windows_of(PROGRAM)[1:]

        return Window(wait_until(alert, "an alert is shown")[0])

    def wait_for_no_alert(self):
        wait_until(lambda: len(windows_of(PROGRAM)) == 1, "the alert is gone")

    def wait_for_text(self, control, text):
        """Waits until a field's text, selected and copied, is this one."""
        def copied():
            done = subprocess.run(["xclip", "-selection", "clipboard", "-out"], text=True,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL)
            return done.stdout == text

        self.window.click_on(control)
        self.window.press("ctrl+a", "ctrl+c")
        wait_until(copied, f"{control} holds '{text}'")

    def wait_for_viewer(self, *known):
        """The one viewer that runs besides the known ones."""
        def new():
            return [viewer for viewer in doubles.running("vexlink") if viewer not in known]

        viewer = wait_until(new, "a viewer runs")[0]
        self.record.wait_for(viewer, "started")
        return viewer

    # What is left.

    @staticmethod
    def end(launcher):
        """Asks the launcher to quit; one that does not is ended, and that is a failure."""
        launcher.terminate()
        try:
            launcher.wait(timeout=60)
        except subprocess.TimeoutExpired:
            launcher.kill()
            launcher.wait()
            raise

    def assert_nothing_left(self):
        try:
            wait_until(none_left, "all processes have ended", limit=20)
        except Failure:
            left = [doubles.command_of(process) for process in descendants()]
            end_descendants()
            self.fail(f"left behind: {left}")
