"""The launcher finds the server that its disk image was downloaded from."""

import subprocess

import doubles
from case import GREEN, LauncherTest
from desktop.launcher import READY


class DiscoveryTest(LauncherTest):
    def test_the_server_is_shown_and_the_viewer_gets_it(self):
        application, address = self.mounted_application()
        self.start(application / "VorxLauncher")
        self.assertEqual(self.launcher.wait_for_location(), address.rsplit("/", 1)[0] + "/")
        self.launcher.wait_for_status(READY)

        self.press_launch()
        self.assertEqual(doubles.arguments_of(self.wait_for_viewer()),
                         ["-l", "127.0.0.1", "-i", "127.0.0.1", "-r", f"{application}/Resources"])
        self.quit()

    def test_started_through_a_symbolic_link(self):
        application, _ = self.mounted_application()
        link = self.folder / "VorxLauncher"
        link.symlink_to(application / "VorxLauncher")
        self.start(link)
        self.launcher.wait_for_location()

    def test_started_by_a_relative_path(self):
        application, _ = self.mounted_application()
        self.start("VorxLauncher.app/VorxLauncher", folder=application.parent)
        self.launcher.wait_for_location()

    def test_the_image_is_unmounted_under_the_launcher(self):
        application, _ = self.mounted_application()
        self.start(application / "VorxLauncher")
        self.launcher.wait_for_location()
        subprocess.run(["umount", "--lazy", application.parent], check=True)

        self.enter_address("10.0.0.5")
        self.wait_for_colour(self.launcher.address, GREEN)
        self.press_in_vain()
        self.quit()
