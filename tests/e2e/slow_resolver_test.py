"""The resolver takes a long time."""

import doubles
from case import GREEN, RED, LauncherTest
from desktop.launcher import READY, RUNNING_READY
from desktop.waiting import wait_until
from desktop.window import press, type_text


class SlowResolverTest(LauncherTest):
    def look_up(self):
        """Presses the button. Returns once the lookup is under way."""
        self.start_with_slow_resolver()
        self.enter_location("https://localhost")
        self.launcher.wait_for_status(READY)
        self.press_launch()
        self.wait_for_lookup()

    def test_what_is_typed_meanwhile_is_shown_and_judged(self):
        self.look_up()
        self.enter_address("10.0.0")
        self.wait_for_colour(self.launcher.address, RED)
        type_text(".5")
        self.wait_for_colour(self.launcher.address, GREEN)
        self.assertEqual(self.launcher.address.text, "10.0.0.5")
        self.assertEqual(doubles.running("vexlink"), [])

        self.answers.open()
        self.assertEqual(doubles.arguments_of(self.wait_for_viewer())[:4],
                         ["-l", "localhost", "-i", doubles.address_of("localhost")])

    def test_the_location_is_locked_meanwhile(self):
        self.look_up()
        self.assertFalse(self.launcher.location.enabled)
        self.assertFalse(self.launcher.button.enabled)
        self.launcher.click_on(self.launcher.location)
        type_text("typed")
        self.answers.open()
        self.launcher.wait_for_status(RUNNING_READY)
        self.assertEqual(self.launcher.location.text, "https://localhost")
        self.assertEqual(self.launcher.address.text, "")

    def test_who_typed_the_location_types_on_after_the_launch(self):
        self.start_with_slow_resolver()
        type_text("https://localhost/path")
        self.launcher.wait_for_status(READY)
        press("shift+Left", "shift+Left", "shift+Left", "shift+Left", "Return")
        self.wait_for_lookup()
        self.answers.open()
        self.launcher.wait_for_status(RUNNING_READY)
        wait_until(lambda: self.launcher.location.focused, "the location has the focus again")
        type_text("new")  # replaces the selection
        wait_until(lambda: self.launcher.location.text == "https://localhost/new",
                   "the location is edited where it was left")

    def test_who_has_gone_elsewhere_stays_there(self):
        self.start_with_slow_resolver()
        type_text("https://localhost")
        self.launcher.wait_for_status(READY)
        press("Return")
        self.wait_for_lookup()
        self.launcher.click_on(self.launcher.address)
        wait_until(lambda: self.launcher.address.focused, "the address has the focus")
        self.answers.open()
        self.launcher.wait_for_status(RUNNING_READY)
        type_text("10.0.0.5")
        wait_until(lambda: self.launcher.address.text == "10.0.0.5", "the address is typed")

    def test_a_second_launch_overtakes_it(self):
        self.look_up()
        self.enter_address("10.0.0.5")
        self.launcher.wait_for_status(READY)
        self.press_launch()
        first = self.wait_for_viewer()
        self.assertEqual(doubles.arguments_of(first)[3], "10.0.0.5")

        self.answers.open()
        second = self.wait_for_viewer(first)
        self.assertEqual(doubles.arguments_of(second)[3], doubles.address_of("localhost"))
        self.assertEqual(self.record.events()[1:],
                         [(first, "started"), (first, "SIGTERM"), (second, "started")])

    def test_the_launcher_quits_without_the_answer(self):
        self.look_up()
        self.quit()
        self.assertEqual(self.record.events(), [(self.process.pid, "lookup")])
