"""A press of the button starts the viewer."""

import shutil

import doubles
from case import LauncherTest
from desktop.launcher import LOOKING_UP, READY, RUNNING_READY
from desktop.waiting import wait_until
from desktop.window import press, type_text


class LaunchTest(LauncherTest):
    def viewer_arguments(self):
        return doubles.arguments_of(self.wait_for_viewer())

    def test_a_typed_address_is_not_looked_up(self):
        self.start()
        self.enter_location("https://server.example:444/path")
        press("Tab")
        type_text("10.0.0.5")
        wait_until(lambda: self.launcher.address.text == "10.0.0.5", "the address is typed")
        press("Return")
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "server.example", "-i", "10.0.0.5", "-r", f"{self.application}/Resources"])
        self.launcher.wait_for_status(RUNNING_READY)
        self.assertEqual(self.launcher.button.name, "Re-Launch")

    def test_a_name_is_looked_up(self):
        self.start()
        self.enter_location("http://localhost")
        self.launcher.wait_for_status(READY)
        self.press_launch()
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "localhost", "-i", doubles.address_of("localhost"),
             "-r", f"{self.application}/Resources"])

    def test_a_missing_viewer_leaves_the_launcher_as_it_was(self):
        self.viewer.unlink()
        self.start()
        self.enter_valid()
        self.press_in_vain()

        self.put_viewer_in_place()
        self.press_launch()
        self.wait_for_viewer()

    def test_a_launch_waits_until_the_system_has_a_thread(self):
        no_threads = self.folder / "no threads"
        self.start(environment={"LD_PRELOAD": str(doubles.THREAD_REFUSER),
                                "NO_THREADS": str(no_threads)})
        self.enter_valid()
        no_threads.touch()
        self.press_launch()
        self.record.wait_for(self.process.pid, "refused")
        self.launcher.wait_for_status(LOOKING_UP)

        no_threads.unlink()
        self.wait_for_viewer()
        self.launcher.wait_for_status(RUNNING_READY)

    def test_words_on_the_command_line_are_ignored(self):
        self.start(None, "https://server.example", "--help", "-style", "none", "-platform", "none")
        self.assertEqual(self.launcher.location.text, "")
        self.quit()

    def test_the_bundle_works_wherever_it_is_copied(self):
        place = self.folder / "Ordner mit Lücken und 日本語"
        shutil.copytree(self.application, place / "VorxLauncher.app", symlinks=True)
        self.start(place / "VorxLauncher.app/VorxLauncher")
        self.launch()
        self.assertEqual(
            self.viewer_arguments(),
            ["-l", "server.example", "-i", "10.0.0.5", "-r", f"{place}/VorxLauncher.app/Resources"])
