"""A display that goes away."""

import os
import subprocess
import unittest.mock

from case import PROGRAM, READY, LauncherTest
from desktop.display import VirtualDisplay


class DisplayTest(LauncherTest):
    def test_the_launcher_ends_with_it_and_stops_its_viewer(self):
        with VirtualDisplay() as display, unittest.mock.patch.dict(os.environ, display.environment):
            self.start()
            self.enter_valid()
            self.wait_for_status(READY)
            self.press_launch()
            viewer = self.wait_for_viewer()
        self.assertNotEqual(self.launcher.wait(timeout=60), 0)
        self.record.wait_for(viewer, "SIGTERM")

    def test_without_one_a_line_says_so(self):
        environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        done = subprocess.run([self.application / PROGRAM], env=environment, text=True, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stdout, "VorxLauncher: no display to show the window on\n")
