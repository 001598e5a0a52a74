"""A name that does not resolve."""

import reading
from case import NO_URL, READY, LauncherTest


class FailureTest(LauncherTest):
    def fail_to_look_up(self):
        self.start()
        self.enter("vorxLocation", "https://nohost.invalid")
        self.wait_for_status(READY)
        self.press_launch()

    def test_an_alert_tells_and_an_edit_brings_the_button_back(self):
        self.fail_to_look_up()
        alert = reading.read(self.wait_for_alert().settled_picture())
        self.assertIn("Failed to look up IP address for", alert)
        self.assertIn("nohost.invalid", alert.replace(" ", ""))
        self.assertIn("Please check you have entered the correct address", alert)
        self.wait_for_status(NO_URL)
        self.window.press("Return")
        self.wait_for_no_alert()

        self.assertEqual(self.status(), NO_URL)
        self.assert_button_disabled()
        self.enter("vorxLocation", "https://server.example")
        self.wait_for_status(READY)

    def test_closing_the_alert_leaves_the_launcher(self):
        self.fail_to_look_up()
        self.wait_for_alert().close()
        self.wait_for_no_alert()
        self.quit()
