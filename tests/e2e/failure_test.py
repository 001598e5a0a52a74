"""A name that does not resolve."""

from case import LauncherTest
from desktop.launcher import NO_URL, READY
from desktop.screen_reader import BUTTON, LABEL
from desktop.waiting import wait_until
from desktop.window import press, type_text, windows_of

UNKNOWN = "https://nohost.invalid"


class FailureTest(LauncherTest):
    def fail_to_look_up(self):
        """Returns the alert once it is shown."""
        self.start()
        self.enter_location(UNKNOWN)
        self.launcher.wait_for_status(READY)
        self.press_launch()
        return self.launcher.wait_for_alert()

    def test_an_alert_tells_and_an_edit_brings_the_button_back(self):
        alert = self.fail_to_look_up()
        wait_until(lambda: alert.active, "the alert has the keys")  # a screen reader reads it then
        texts = [label.name for label in alert.all(LABEL)]
        self.assertIn("Failed to look up IP address for 'nohost.invalid'", texts)
        self.assertIn("Please check you have entered the correct address", texts)
        self.assertEqual([button.name for button in alert.all(BUTTON)], ["OK"])
        self.launcher.wait_for_status(NO_URL)
        press("Return")
        self.launcher.wait_for_no_alert()

        self.assertEqual(self.launcher.status, NO_URL)
        self.assertFalse(self.launcher.button.enabled)
        self.enter_location()
        self.launcher.wait_for_status(READY)

    def test_the_next_key_edits_the_location(self):
        self.fail_to_look_up()
        press("Return")
        self.launcher.wait_for_no_alert()
        wait_until(lambda: self.launcher.location.focused, "the location has the focus")
        self.launcher.wait_until_active()
        press("End")
        type_text("x")
        wait_until(lambda: self.launcher.location.text == UNKNOWN + "x", "the location is edited")
        self.launcher.wait_for_status(READY)

    def test_closing_the_alert_leaves_the_launcher(self):
        self.fail_to_look_up()
        windows_of(self.process.pid)[1].close()
        self.launcher.wait_for_no_alert()
        self.quit()
