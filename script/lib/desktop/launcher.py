"""A running launcher, driven as a person does: by the names of the window's parts, with real keys
and clicks."""

import pathlib

from desktop.picture import picture_of
from desktop.screen_reader import BUTTON, FIELD, NOTIFICATION, program
from desktop.waiting import Failure, wait_until
from desktop.window import click, press, type_text, windows_of
from localised import tables

PROGRAM = "VorxLauncher"
_RESOURCES = pathlib.Path(__file__).resolve().parents[3] / "resources"

TITLE = "Vorx Launcher"
NO_URL = "Enter valid Vorx location to enable launch button"
READY = "Press launch button to start remote control"
RUNNING_READY = "Press launch button to re-start remote control"
LOOKING_UP = "Looking up IP Address for the Vorx"


def texts_in(language):
    """The texts of a language by their keys."""
    table = _RESOURCES / f"{language}.lproj/Localizable.strings"
    return {entry.key: entry.text for entry in tables.parse(tables.decode(table.read_bytes()))}


class Launcher:
    """Finds the window of a running process, in one language. Returns once the window is shown in its
    place and has the focus."""

    def __init__(self, process, language="en"):
        self.process = process
        self.texts = texts_in(language)
        self.window = self.wait_until(self._shown, "the launcher shows its window")
        self.location = self.window.find(FIELD, self.texts["Vorx location"])
        self.address = self.window.find(FIELD, self.texts["IP address"])
        self.button = self.window.find(BUTTON)
        self._status = self.window.find(NOTIFICATION)

    def _shown(self):
        known = program(self.process.pid)
        window = known and known.find_window(self.texts[TITLE])
        return window and window.active and window

    # What the person sees.

    @property
    def on_display(self):
        """The window, as the window manager sees it."""
        return windows_of(self.process.pid)[0]

    @property
    def status(self):
        return self._status.name

    def picture_of(self, part):
        return picture_of("root").crop(*part.frame)

    def wait_until(self, condition, what):
        def met():
            if self.process.poll() is not None:
                raise Failure(f"the launcher has ended before {what}")
            return condition()

        return wait_until(met, what)

    def wait_for_status(self, key):
        self.wait_until(lambda: self.status == self.texts[key], f"the status line says '{key}'")

    def wait_for_location(self):
        return self.wait_until(lambda: self.location.text, "the location has been found")

    def wait_until_active(self):
        self.wait_until(lambda: self.window.active, "the keys go to the launcher's window")

    def wait_for_alert(self):
        """Waits until an alert is shown and has the focus, and returns it."""
        def alert():
            found = program(self.process.pid).find_alert()
            return found and found.find(BUTTON).focused and found

        return self.wait_until(alert, "an alert is shown")

    def wait_for_no_alert(self):
        self.wait_until(lambda: len(windows_of(self.process.pid)) == 1, "the alert is gone")

    # What the person does.

    def click_on(self, part):
        left, top, width, height = part.frame
        click(left + width // 2, top + height // 2)

    def enter(self, field, text):
        """Types a text into a field and replaces its former text."""
        self.click_on(field)
        self.wait_until(lambda: field.focused, "the field has the focus")
        press("ctrl+a", "BackSpace")
        self.wait_until(lambda: field.text == "", "the field is empty")
        type_text(text)
        self.wait_until(lambda: field.text == text, f"the field holds '{text}'")
