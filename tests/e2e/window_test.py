"""The window among other windows, on a desktop."""

import subprocess

from case import LauncherTest
from desktop.waiting import wait_until


class WindowTest(LauncherTest):
    def property(self, name):
        return subprocess.run(["xprop", "-id", self.window.identifier, name], check=True, text=True,
                              stdout=subprocess.PIPE).stdout

    def test_it_stays_above_ordinary_windows(self):
        self.start()
        wait_until(lambda: "_NET_WM_STATE_ABOVE" in self.window.states(), "the window is kept above")

    def test_window_lists_show_its_name_and_icon(self):
        self.start()
        self.assertIn('"VorxLauncher", "VorxLauncher"', self.property("WM_CLASS"))
        self.assertIn('"Vorx Launcher"', self.property("_NET_WM_NAME"))
        self.assertIn("Icon (128 x 128)", self.property("_NET_WM_ICON"))

    def test_it_is_as_large_as_a_dense_screen_needs(self):
        self.start()
        width, height = self.window.geometry()[2:]
        ordinary = self.window.settled_picture()
        self.quit()

        self.addCleanup(subprocess.run, ["xprop", "-root", "-remove", "RESOURCE_MANAGER"], check=True)
        subprocess.run(["xprop", "-root", "-format", "RESOURCE_MANAGER", "8s",
                        "-set", "RESOURCE_MANAGER", "Xft.dpi:\t192\n"], check=True)
        self.start()
        self.assertEqual(self.window.geometry()[2:], [2 * width, 2 * height])
        dense = self.window.settled_picture()
        for x, y in ((2, 2), (2, height - 1), (width - 2, 2), (width - 2, height - 1)):
            self.assertEqual(dense.pixel(2 * x, 2 * y + 1), ordinary.pixel(x, y), (x, y))

    def test_colours_of_other_programs_leave_it_legible(self):
        self.start()
        light = self.window.settled_picture()
        self.quit()

        # As a setting of the toolkit's; the person's own file of them lies outside of this test.
        self.start(None, "-controlTextColor", "1 1 1", "-textBackgroundColor", "0 0 0")
        # The insertion point blinks.
        wait_until(lambda: self.window.picture() == light, "the window looks as before")
