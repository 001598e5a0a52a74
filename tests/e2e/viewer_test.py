"""The sample viewer shows what it is given."""

import os
import pathlib
import signal
import subprocess

from case import LauncherTest
from desktop import screen_reader
from desktop.display import VirtualDisplay
from desktop.screen_reader import LABEL
from desktop.waiting import wait_until
from desktop.window import windows_of

HOST, ADDRESS, FOLDER = "<b>server</b>", "10.0.0.5", 28 * "/folder"


class ViewerTest(LauncherTest):
    def put_viewer_in_place(self):
        """Leaves the sample viewer in its place."""

    def run_viewer(self, *arguments, **environment):
        viewer = subprocess.Popen(
            [self.viewer, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True,
            env={**os.environ, **screen_reader.ENVIRONMENT, **environment})
        self.addCleanup(viewer.communicate)
        self.addCleanup(viewer.kill)
        return viewer

    def start_viewer(self, **environment):
        """Returns once the viewer has told its arguments."""
        viewer = self.run_viewer("-l", HOST, "-i", ADDRESS, "-r", FOLDER, **environment)
        self.assertEqual(viewer.stdout.readline(), f"sample viewer: host {HOST}, IP address {ADDRESS}, "
                                                   f"resource folder {FOLDER}\n")
        return viewer

    @staticmethod
    def window_of(viewer):
        return wait_until(lambda: windows_of(viewer.pid), "the viewer shows its window")[0]

    def test_shows_its_arguments_as_they_are(self):
        viewer = self.start_viewer()
        left, top, width, height = self.window_of(viewer).geometry()
        display = subprocess.run(["xdotool", "getdisplaygeometry"], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout.split()
        self.assertLessEqual(left + width, int(display[0]))
        self.assertLessEqual(top + height, int(display[1]))

        spoken = wait_until(lambda: screen_reader.program(viewer.pid), "a screen reader sees the viewer")
        window = wait_until(lambda: spoken.find_window("Sample Viewer"), "the window has its title")
        shown = "\n".join(label.name for label in window.all(LABEL))
        for row in (f"Host: {HOST}", f"IP address: {ADDRESS}", f"Resource folder: {FOLDER}"):
            self.assertIn(row, shown.splitlines())

    def test_ends_when_its_window_is_closed(self):
        viewer = self.start_viewer()
        self.window_of(viewer).close()
        self.assertEqual(viewer.wait(timeout=60), 0)

    def test_ends_with_its_display(self):
        with VirtualDisplay() as display:
            viewer = self.start_viewer(DISPLAY=display.environment["DISPLAY"])
            wait_until(lambda: screen_reader.program(viewer.pid), "the viewer has its display")
        self.assertNotEqual(viewer.wait(timeout=60), 0)

    def test_ends_on_its_signal(self):
        viewer = self.start_viewer()
        self.window_of(viewer)
        viewer.terminate()
        self.assertEqual(viewer.wait(timeout=60), -signal.SIGTERM)

    def test_waits_for_its_signal_without_a_display(self):
        viewer = self.start_viewer(DISPLAY="")
        state = pathlib.Path(f"/proc/{viewer.pid}/stat")
        wait_until(lambda: state.read_text().rsplit(") ", 1)[1].startswith("S"), "the viewer waits")
        viewer.terminate()
        self.assertEqual(viewer.wait(timeout=60), -signal.SIGTERM)

    def test_refuses_other_arguments(self):
        viewer = self.run_viewer("-l", HOST)
        self.assertEqual(viewer.communicate(timeout=60)[0],
                         f"usage: {self.viewer} -l HOST -i ADDRESS -r FOLDER\n")
        self.assertEqual(viewer.returncode, 2)
