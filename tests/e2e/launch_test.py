"""A press of the button starts the viewer."""

import shutil
import socket

import doubles
from case import READY, RUNNING_READY, LauncherTest


class LaunchTest(LauncherTest):
    def viewer_arguments(self):
        return doubles.arguments_of(self.wait_for_viewer())

    def test_a_typed_address_is_not_looked_up(self):
        self.start()
        self.enter("vorxLocation", "https://server.example:444/path")
        self.window.press("Tab")
        self.window.type("10.0.0.5")
        self.wait_for_status(READY)
        self.window.press("Return")
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "server.example", "-i", "10.0.0.5", "-r", f"{self.application}/Resources"])
        self.wait_for_status(RUNNING_READY)
        self.assertEqual(self.button_title(), "Re-Launch")

    def test_a_name_is_looked_up(self):
        self.start()
        self.enter("vorxLocation", "http://localhost")
        self.wait_for_status(READY)
        self.press_launch()
        first_address = socket.getaddrinfo("localhost", None, type=socket.SOCK_STREAM)[0][4][0]
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "localhost", "-i", first_address, "-r", f"{self.application}/Resources"])

    def test_a_missing_viewer_leaves_the_launcher_as_it_was(self):
        self.viewer.unlink()
        self.start()
        self.enter_valid()
        self.wait_for_status(READY)
        enabled_button = self.settled("launchButton")
        self.press_launch()
        self.wait_for_status(READY)
        self.assertEqual(self.settled("launchButton"), enabled_button)

        self.put_viewer_in_place()
        self.press_launch()
        self.wait_for_viewer()

    def test_the_bundle_works_wherever_it_is_copied(self):
        place = self.folder / "Ordner mit Lücken und 日本語"
        shutil.copytree(self.application, place / "VorxLauncher.app")
        self.start(place / "VorxLauncher.app/VorxLauncher")
        self.enter_valid()
        self.wait_for_status(READY)
        self.press_launch()
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "server.example", "-i", "10.0.0.5", "-r", f"{place}/VorxLauncher.app/Resources"])
