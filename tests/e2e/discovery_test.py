"""The launcher finds the server that its disk image was downloaded from."""

import subprocess

import doubles
from case import GREEN, READY, LauncherTest


class DiscoveryTest(LauncherTest):
    def test_the_server_is_shown_and_the_viewer_gets_it(self):
        application, address = self.mounted_application()
        self.start(application / "VorxLauncher")
        self.wait_for_location()
        self.wait_for_status(READY)
        self.wait_for_text("vorxLocation", address.rsplit("/", 1)[0] + "/")

        self.press_launch()
        self.assertEqual(doubles.arguments_of(self.wait_for_viewer()),
                         ["-l", "127.0.0.1", "-i", "127.0.0.1", "-r", f"{application}/Resources"])
        self.quit()

    def test_started_through_a_symbolic_link(self):
        application, _ = self.mounted_application()
        link = self.folder / "VorxLauncher"
        link.symlink_to(application / "VorxLauncher")
        self.start(link)
        self.wait_for_location()

    def test_started_by_a_relative_path(self):
        application, _ = self.mounted_application()
        self.start("VorxLauncher.app/VorxLauncher", folder=application.parent)
        self.wait_for_location()

    def test_the_image_is_unmounted_under_the_launcher(self):
        application, _ = self.mounted_application()
        self.start(application / "VorxLauncher")
        self.wait_for_location()
        subprocess.run(["umount", "--lazy", application.parent], check=True)

        self.enter("ipAddress", "10.0.0.5")
        self.wait_for_ip_colour(GREEN)
        self.press_launch()
        self.wait_for_status(READY)
        self.assertEqual(doubles.running("vexlink"), [])
        self.quit()
