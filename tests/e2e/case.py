"""What the end-to-end tests share: they use the launcher as a person does, and it leaves nothing."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import doubles
from desktop import screen_reader
from desktop.attached_image import NotAllowed, attached
from desktop.download import download, served
from desktop.launcher import LOOKING_UP, PROGRAM, READY, Launcher
from desktop.processes import adopt_orphans, descendants, end_descendants, none_left
from desktop.waiting import Failure, wait_until

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
APPLICATION = "VorxLauncher.app"
LOCATION = "https://server.example"

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
        shutil.copytree(BUILD / APPLICATION, self.application, symlinks=True)
        self.put_viewer_in_place()

    # Setting up.

    @property
    def viewer(self):
        return self.application / "Resources/bin/vexlink"

    def put_viewer_in_place(self):
        shutil.copy(doubles.DOUBLE, self.viewer)

    def mounted_application(self):
        """The application in the volume of a downloaded image, and the address of the download."""
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

    def start_process(self, program=None, *arguments, folder=None, language="en", locale="C.UTF-8",
                      environment=None):
        process = subprocess.Popen(
            [str(program or self.application / PROGRAM), *arguments], cwd=folder,
            stdin=subprocess.DEVNULL,
            env={**os.environ, **screen_reader.ENVIRONMENT, "HOME": str(self.folder),
                 "LC_ALL": locale, "LANGUAGE": language, "RECORD": str(self.record.file),
                 **(environment or {})})
        self.addCleanup(self.end, process)
        return process

    def start(self, *words, shown_in="en", **options):
        """Starts the launcher and waits for its window."""
        self.process = self.start_process(*words, **options)
        self.launcher = Launcher(self.process, shown_in)

    def start_with_slow_resolver(self):
        """Starts the launcher. Its lookups wait until the gate `answers` is opened."""
        self.answers = doubles.Gate(self.folder / "answers")
        self.start(environment={"LD_PRELOAD": str(doubles.SLOW_RESOLVER),
                                "ANSWERS": str(self.answers.file)})

    def wait_for_lookup(self):
        self.launcher.wait_for_status(LOOKING_UP)
        self.record.wait_for(self.process.pid, "lookup")

    def start_double(self, name):
        double = doubles.start(name, self.record, self.folder)
        self.addCleanup(double.wait)
        self.addCleanup(double.terminate)
        return double.pid

    def start_with_companions(self, **environment):
        """Starts the launcher beside two companions, and records the signals that it sends."""
        self.companions = sorted([self.start_double("vexwatch"), self.start_double("vexwatch")])
        self.start(environment={"LD_PRELOAD": str(doubles.KILL_RECORDER), **environment})

    # What the person does.

    def enter_location(self, location=LOCATION):
        self.launcher.enter(self.launcher.location, location)

    def enter_address(self, address):
        self.launcher.enter(self.launcher.address, address)

    def enter_valid(self):
        """Types a location and an address. With an address nothing is looked up."""
        self.enter_location()
        self.enter_address("10.0.0.5")
        wait_until(lambda: self.launcher.button.enabled, "the button is enabled")

    def press_launch(self):
        self.launcher.click_on(self.launcher.button)

    def launch(self):
        """Enters a valid location and launches it. Returns the running viewer."""
        known = doubles.running("vexlink")
        self.enter_valid()
        self.press_launch()
        return self.wait_for_viewer(*known)

    def press_in_vain(self):
        """Presses the button when no viewer can be started. The window is soon as before."""
        with screen_reader.Announcements() as announcements:
            self.press_launch()
            wait_until(lambda: announcements.heard()[1:], "the status line has said two things")
        self.launcher.wait_for_status(READY)
        wait_until(lambda: self.launcher.button.enabled, "the button is enabled again")
        self.assertEqual(doubles.running("vexlink"), [])

    def quit(self):
        """Closes the window and waits for the launcher to end."""
        self.launcher.on_display.close()
        self.assert_ends()

    # What the person sees.

    def colour(self, field):
        """The colour of most of a field."""
        return self.launcher.picture_of(field).main_colour()

    def wait_for_colour(self, field, colour):
        wait_until(lambda: self.colour(field) == colour, f"the field's colour is {colour}")

    def wait_for_viewer(self, *known):
        """The one viewer that runs besides the known ones."""
        def new():
            return [viewer for viewer in doubles.running("vexlink") if viewer not in known]

        viewer = wait_until(new, "a viewer runs")[0]
        self.record.wait_for(viewer, "started")
        return viewer

    def assert_ends(self, status=0):
        self.assertEqual(self.process.wait(timeout=60), status)

    def assert_quit_sequence(self, viewer=None):
        """The launcher has asked the viewer and the first companion to end, once each, and no others."""
        asked = [self.companions[0]] if viewer is None else [viewer, self.companions[0]]
        for double in asked:
            self.record.wait_for(double, "SIGTERM")
        sent = [event for process, event in self.record.events() if process == self.process.pid]
        self.assertEqual(sent, [f"kill:{double}" for double in asked])
        self.assertEqual(doubles.running("vexwatch"), self.companions[1:])

    # Cleaning up.

    @staticmethod
    def end(process):
        """Asks the launcher to quit. If it does not, kills it and fails."""
        process.terminate()
        try:
            process.wait(timeout=60)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
            raise

    def assert_nothing_left(self):
        try:
            wait_until(none_left, "all processes have ended", limit=20)
        except Failure:
            left = [doubles.command_of(process) for process in descendants()]
            end_descendants()
            self.fail(f"left behind: {left}")
