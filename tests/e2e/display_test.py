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

    def test_without_one_a_line_says_so(self):
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        done = subprocess.run([self.application / PROGRAM], env=environment, text=True, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stdout, "VorxLauncher: no display to show the window on\n")
