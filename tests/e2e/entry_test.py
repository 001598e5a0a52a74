"""The launcher judges the input with every key."""

from case import GREEN, RED, WHITE, LauncherTest
from desktop.launcher import NO_URL, READY
from desktop.waiting import wait_until
from desktop.window import press, type_text


class EntryTest(LauncherTest):
    def test_a_location_enables_the_button_and_its_loss_disables_it(self):
        self.start()
        self.assertFalse(self.launcher.button.enabled)
        self.assertEqual(self.launcher.status, NO_URL)
        self.enter_location()
        self.launcher.wait_for_status(READY)
        wait_until(lambda: self.launcher.button.enabled, "the button is enabled")
        self.enter_location("server")
        self.launcher.wait_for_status(NO_URL)
        wait_until(lambda: not self.launcher.button.enabled, "the button is disabled")

    def test_the_address_field_shows_whether_it_holds_an_address(self):
        self.start()
        address = self.launcher.address
        self.enter_address("10.0.0")
        self.wait_for_colour(address, RED)
        type_text(".5")
        self.wait_for_colour(address, GREEN)
        press("ctrl+a", "BackSpace")
        self.wait_for_colour(address, WHITE)
        self.assertEqual(self.colour(self.launcher.location), WHITE)

    def test_a_wrong_address_keeps_the_button_disabled(self):
        self.start()
        self.enter_location()
        self.launcher.wait_for_status(READY)
        self.enter_address("letters")
        self.launcher.wait_for_status(NO_URL)
        wait_until(lambda: not self.launcher.button.enabled, "the button is disabled")
