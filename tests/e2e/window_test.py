"""The window among other windows, on a desktop."""

import subprocess

from case import GREEN, RED, WHITE, LauncherTest
from desktop.picture import picture_of
from desktop.waiting import wait_until
from desktop.window import type_text

DARK = "".join(f"[Colors:{part}]\nBackgroundNormal=20,20,20\nForegroundNormal=240,240,240\n"
               for part in ("Window", "View", "Button", "Selection", "Tooltip"))


class WindowTest(LauncherTest):
    def assert_stays_above(self):
        def is_kept_above():
            return "_NET_WM_STATE_ABOVE" in self.launcher.on_display.property("_NET_WM_STATE")

        wait_until(is_kept_above, "the window is kept above")

    def test_it_stays_above_ordinary_windows(self):
        self.start()
        self.assert_stays_above()
        self.launcher.on_display.minimise()
        wait_until(lambda: not self.launcher.window.active, "the window is an icon")
        self.launcher.on_display.activate()
        self.launcher.wait_until_active()
        self.assert_stays_above()

    def test_window_lists_show_its_name_and_icon(self):
        self.start()
        window = self.launcher.on_display
        self.assertIn('"VorxLauncher"', window.property("WM_CLASS"))
        self.assertIn('"Vorx Launcher"', window.property("_NET_WM_NAME"))
        self.assertIn("Icon (128 x 128)", window.property("_NET_WM_ICON"))

    def test_it_is_as_large_as_a_dense_screen_needs(self):
        self.start()
        width, height = self.launcher.on_display.geometry()[2:]
        self.quit()

        self.addCleanup(subprocess.run, ["xprop", "-root", "-remove", "RESOURCE_MANAGER"], check=True)
        subprocess.run(["xprop", "-root", "-format", "RESOURCE_MANAGER", "8s",
                        "-set", "RESOURCE_MANAGER", "Xft.dpi:\t192\n"], check=True)
        self.start()
        for size, dense_size in zip((width, height), self.launcher.on_display.geometry()[2:]):
            self.assertAlmostEqual(dense_size / size, 2, delta=0.1)

    def start_on_dark_desktop(self):
        settings = self.folder / "kdeglobals"
        settings.write_text(DARK)
        self.start(environment={"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                                "KDE_SESSION_VERSION": "5", "XDG_CONFIG_HOME": str(self.folder)})

    def test_a_dark_desktop_has_a_dark_window_with_legible_fields(self):
        self.start_on_dark_desktop()
        self.assertEqual(self.launcher.on_display.picture().main_colour(), (20, 20, 20))
        location, address = self.launcher.location, self.launcher.address
        self.enter_location()
        self.assert_legible(location, WHITE)
        self.enter_address("10.0.0")
        self.assert_legible(address, RED)
        type_text(".5")
        self.assert_legible(address, GREEN)

    def assert_legible(self, field, background):
        """The field shows black text inside its border."""
        self.wait_for_colour(field, background)
        left, top, width, height = field.frame
        inside = picture_of("root").crop(left + 6, top + 6, width - 12, height - 12)
        self.assertTrue(inside.has((0, 0, 0)))
