"""All by the keyboard."""

import subprocess

from case import GREEN, NO_URL, READY, WHITE, LauncherTest
from desktop.waiting import wait_until

LOCATION = "https://server.example"
LONG_LOCATION = LOCATION + "/a/folder" * 30


def put_on_clipboard(text):
    """As another program does, which goes on offering it."""
    subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text, text=True, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def on_clipboard():
    return subprocess.run(["xclip", "-selection", "clipboard", "-out"], text=True, check=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE).stdout


class KeyboardTest(LauncherTest):
    def location(self):
        """What the location field holds, copied from there."""
        put_on_clipboard("nothing was copied")
        self.window.press("ctrl+a", "ctrl+c")
        wait_until(lambda: on_clipboard() != "nothing was copied", "the location is copied")
        return on_clipboard()

    def test_typing_begins_in_the_location_field_and_tab_goes_round(self):
        self.start()
        self.window.type(LOCATION)
        self.wait_for_status(READY)
        self.window.press("Tab")
        self.window.type("10.0.0.5")
        self.wait_for_ip_colour(GREEN)
        self.window.press("Tab", "Tab", "BackSpace")  # by way of the button
        self.wait_for_status(NO_URL)
        self.window.press("Tab", "BackSpace")  # the button is disabled now
        self.wait_for_ip_colour(WHITE)
        self.window.press("shift+Tab")
        self.window.type(LOCATION)
        self.wait_for_status(READY)

    def test_what_is_cut_typed_and_pasted_can_be_taken_back(self):
        self.start()
        self.window.type(LOCATION)
        self.wait_for_status(READY)
        self.window.press("ctrl+a", "ctrl+x")
        self.wait_for_status(NO_URL)
        self.window.press("ctrl+v")
        self.wait_for_status(READY)
        self.window.press("ctrl+z")
        self.wait_for_status(NO_URL)
        self.window.press("ctrl+shift+z")
        self.wait_for_status(READY)

    def test_keys_without_a_meaning_leave_the_text_as_it_is(self):
        self.start()
        self.window.type(LOCATION)
        self.wait_for_status(READY)
        self.window.press("Escape", "ctrl+k", "ctrl+shift+k", "ctrl+1", "Escape")
        self.assertEqual(self.location(), LOCATION)
        self.assertEqual(self.status(), READY)

    def test_what_is_pasted_arrives_as_it_is_but_in_one_line(self):
        self.start()
        for pasted, location in (("https://bücher.example/日本語 x", "https://bücher.example/日本語 x"),
                                 (LONG_LOCATION, LONG_LOCATION),
                                 (LOCATION + "\n", LOCATION),
                                 ("https://server\r\n.example", LOCATION)):
            with self.subTest(pasted):
                put_on_clipboard(pasted)
                self.window.press("ctrl+a", "BackSpace")
                wait_until(lambda: not self.window.has_location(), "the field is empty")
                self.window.press("ctrl+v")
                self.wait_for_location()
                self.assertEqual(self.location(), location)

    def test_a_long_location_scrolls_to_where_it_is_edited(self):
        self.start()
        self.window.type(LONG_LOCATION)
        end = self.settled("vorxLocation")
        self.window.press("Home")
        wait_until(lambda: self.settled("vorxLocation") != end, "the location's beginning is shown")
        self.window.press("End")
        wait_until(lambda: self.settled("vorxLocation") == end, "the location's end is shown")

    def test_the_menu_key_closes_the_window(self):
        self.start()
        self.window.press("ctrl+w")
        self.assertEqual(self.launcher.wait(timeout=60), 0)
