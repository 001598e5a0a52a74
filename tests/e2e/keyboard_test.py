"""The keyboard alone is enough."""

import subprocess

from case import GREEN, LOCATION, LauncherTest
from desktop.launcher import NO_URL, READY
from desktop.waiting import wait_until
from desktop.window import press, type_text

LONG_LOCATION = LOCATION + "/a/folder" * 30


def put_on_clipboard(text):
    """Offers the text as another program does: until somebody else offers one."""
    subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text, text=True, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class KeyboardTest(LauncherTest):
    def wait_for_location(self, text):
        wait_until(lambda: self.launcher.location.text == text, f"the location is '{text[:80]}'")

    def wait_for_focus(self, part):
        wait_until(lambda: part.focused, f"{part.name} has the focus")

    def test_typing_begins_in_the_location_field_and_tab_goes_round(self):
        self.start()
        launcher = self.launcher
        type_text(LOCATION)
        launcher.wait_for_status(READY)
        press("Tab")
        self.wait_for_focus(launcher.address)
        type_text("10.0.0.5")
        self.wait_for_colour(launcher.address, GREEN)
        press("Tab")
        self.wait_for_focus(launcher.button)
        press("Tab")
        self.wait_for_focus(launcher.location)
        press("BackSpace")
        launcher.wait_for_status(NO_URL)
        press("shift+Tab")  # the button is disabled now
        self.wait_for_focus(launcher.address)

    def test_return_launches_from_either_field(self):
        self.start()
        self.enter_valid()
        press("Return")
        first = self.wait_for_viewer()
        wait_until(lambda: self.launcher.location.enabled, "the location is free again")
        self.launcher.click_on(self.launcher.location)
        self.wait_for_focus(self.launcher.location)
        press("Return")
        self.wait_for_viewer(first)

    def test_return_does_nothing_while_the_button_is_disabled(self):
        self.start()
        type_text("server")
        press("Return", "Tab", "Return")
        self.wait_for_focus(self.launcher.address)
        self.assertEqual(self.launcher.status, NO_URL)
        self.assertTrue(self.launcher.location.enabled)

    def test_what_is_cut_typed_and_pasted_can_be_taken_back(self):
        self.start()
        type_text(LOCATION)
        self.wait_for_location(LOCATION)
        press("ctrl+a", "ctrl+x")
        self.wait_for_location("")
        press("ctrl+v")
        self.wait_for_location(LOCATION)
        press("ctrl+z")
        self.wait_for_location("")
        press("ctrl+shift+z")
        self.wait_for_location(LOCATION)

    def test_text_is_copied_from_one_field_to_the_other(self):
        self.start()
        type_text("::1")
        press("ctrl+a", "ctrl+c", "Tab", "ctrl+v")
        self.wait_for_colour(self.launcher.address, GREEN)
        self.assertEqual(self.launcher.address.text, "::1")

    def test_keys_without_a_meaning_leave_the_text_as_it_is(self):
        self.start()
        type_text(LOCATION)
        press("Escape", "F1", "ctrl+1", "Escape")
        type_text("/")
        self.wait_for_location(LOCATION + "/")

    def test_what_is_pasted_arrives_as_it_is_but_in_one_line(self):
        self.start()
        many_lines = "".join(f"line {number}\n" for number in range(10_000))
        for pasted, location in (("https://bücher.example/日本語 x", "https://bücher.example/日本語 x"),
                                 (LONG_LOCATION, LONG_LOCATION),
                                 (LOCATION + "\n", LOCATION),
                                 ("https://server\r\n.example", LOCATION),
                                 (many_lines, many_lines.replace("\n", ""))):
            with self.subTest(pasted[:40]):
                put_on_clipboard(pasted)
                press("ctrl+a", "ctrl+v")
                self.wait_for_location(location)
        press("ctrl+a", "ctrl+c")

    def test_a_long_location_scrolls_to_where_it_is_edited(self):
        self.start()
        type_text(LONG_LOCATION)
        self.wait_for_location(LONG_LOCATION)

        def picture():
            return self.launcher.picture_of(self.launcher.location)

        end = picture()
        press("Home")
        wait_until(lambda: picture() != end, "the location's beginning is shown")
        press("End")
        wait_until(lambda: picture() == end, "the location's end is shown")

    def test_the_menu_keys_end_the_program(self):
        for key in ("ctrl+w", "ctrl+q"):
            with self.subTest(key):
                self.start()
                press(key)
                self.assert_ends()
