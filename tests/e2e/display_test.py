"""The display goes away."""

import contextlib
import os
import subprocess
import unittest.mock

from case import PROGRAM, LauncherTest
from desktop.display import VirtualDisplay


@contextlib.contextmanager
def display_of_its_own():
    """Beside the session's own, so that the screen reader stays."""
    with VirtualDisplay() as display:
        with unittest.mock.patch.dict(os.environ, DISPLAY=display.environment["DISPLAY"]):
            yield


class DisplayTest(LauncherTest):
    def test_the_launcher_ends_with_it_and_stops_its_viewer(self):
        with display_of_its_own():
            self.start_with_companions()
            viewer = self.launch()
        self.assertNotEqual(self.process.wait(timeout=60), 0)
        self.assert_quit_sequence(viewer)

    def test_an_alert_is_no_hindrance(self):
        with display_of_its_own():
            self.start_with_companions()
            self.enter_location("https://nohost.invalid")
            self.press_launch()
            self.launcher.wait_for_alert()
        self.assertNotEqual(self.process.wait(timeout=60), 0)
        self.assert_quit_sequence()

    def complaint(self, **environment):
        """What the launcher says when it cannot start."""
        done = subprocess.run([self.application / PROGRAM], env={**os.environ, **environment}, text=True,
                              timeout=60, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        self.assertEqual(done.returncode, 1)
        return done.stdout

    def test_without_one_a_line_says_so(self):
        self.assertEqual(self.complaint(DISPLAY="", WAYLAND_DISPLAY=""),
                         "VorxLauncher: no display to show the window on\n")

    def test_it_is_not_blamed_for_a_missing_plugin(self):
        (self.application / "plugins/platforms/libqxcb.so").unlink()
        self.assertRegex(self.complaint(), "^VorxLauncher: .* no Qt platform plugin could be initialized")

    def test_it_is_not_blamed_for_a_damaged_library(self):
        next((self.application / "lib").glob("libQt6XcbQpa.so*")).write_bytes(b"")
        self.assertRegex(self.complaint(), "^VorxLauncher: .* no Qt platform plugin could be initialized")
