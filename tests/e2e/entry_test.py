"""What is typed is judged with every key."""

from case import GREEN, NO_URL, READY, RED, WHITE, LauncherTest


class EntryTest(LauncherTest):
    def test_a_location_enables_the_button_and_its_loss_disables_it(self):
        self.start()
        self.enter("vorxLocation", "https://server.example")
        self.wait_for_status(READY)
        self.enter("vorxLocation", "server")
        self.wait_for_status(NO_URL)
        self.assert_button_disabled()

    def test_the_ip_field_shows_whether_it_holds_an_address(self):
        self.start()
        self.enter("ipAddress", "10.0.0")
        self.wait_for_ip_colour(RED)
        self.window.type(".5")
        self.wait_for_ip_colour(GREEN)
        self.window.press("ctrl+a", "BackSpace")
        self.wait_for_ip_colour(WHITE)

    def test_a_wrong_address_keeps_the_button_disabled(self):
        self.start()
        self.enter("vorxLocation", "https://server.example")
        self.wait_for_status(READY)
        self.enter("ipAddress", "letters")
        self.wait_for_status(NO_URL)
        self.assert_button_disabled()

    def test_text_is_copied_and_pasted(self):
        self.start()
        self.enter("vorxLocation", "::1")
        self.window.press("ctrl+a", "ctrl+c", "Tab", "ctrl+v")
        self.wait_for_ip_colour(GREEN)
        self.wait_for_text("ipAddress", "::1")
