"""A program as a screen reader sees it: its windows and their parts, by role and name."""

import contextlib

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Makes programs report to screen readers from their start.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

LABEL, FIELD, BUTTON, ALERT, NOTIFICATION = "label", "text", "button", "alert", "notification"
_OLD_NAMES = {"push button": BUTTON}

Atspi.set_timeout(10_000, 60_000)


class Part:
    """A window or a part of one. Every call asks the program anew, and fails if the part is gone."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def role(self):
        role = self._accessible.get_role_name()
        return _OLD_NAMES.get(role, role)

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def text(self):
        """A field's text."""
        return Atspi.Text.get_text(self._accessible, 0, -1)

    def _has(self, state):
        return self._accessible.get_state_set().contains(state)

    @property
    def enabled(self):
        return self._has(Atspi.StateType.ENABLED)

    @property
    def focused(self):
        return self._has(Atspi.StateType.FOCUSED)

    @property
    def active(self):
        """Whether a window has the keyboard focus."""
        return self._has(Atspi.StateType.ACTIVE)

    @property
    def frame(self):
        """Left, top, width and height on the display."""
        place = Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN)
        return place.x, place.y, place.width, place.height

    def parts(self):
        children = [self._accessible.get_child_at_index(index)
                    for index in range(self._accessible.get_child_count())]
        return [Part(child) for child in children if child is not None]

    def all(self, role):
        """Every part below with the role, in the window's order."""
        found = []
        for part in self.parts():
            found += ([part] if part.role == role else []) + part.all(role)
        return found

    def find(self, role, name=None):
        """The first part with the role, and the name if one is given; or None."""
        with contextlib.suppress(GLib.Error):  # a part may have gone meanwhile
            return next((part for part in self.all(role) if name in (None, part.name)), None)

    def find_window(self, name):
        with contextlib.suppress(GLib.Error):
            return next((part for part in self.parts() if part.name == name), None)

    def find_alert(self):
        """The first part that is an alert with a button."""
        with contextlib.suppress(GLib.Error):
            return next((part for part in self.all(ALERT) if part.find(BUTTON)), None)


def program(process):
    """A running program, whose parts are its windows; None until the program has registered."""
    with contextlib.suppress(GLib.Error):
        for part in Part(Atspi.get_desktop(0)).parts():
            if part._accessible.get_process_id() == process:
                part._accessible.set_cache_mask(Atspi.Cache.NONE)
                return part


class Announcements:
    """What a screen reader says during the `with` block: the name of each notification that
    appears."""

    _SHOWN = "object:state-changed:showing"

    def __init__(self):
        self._listener = Atspi.EventListener.new(self._hear)
        self._heard = []

    def __enter__(self):
        self._listener.register(self._SHOWN)
        return self

    def __exit__(self, *_):
        self._listener.deregister(self._SHOWN)

    def _hear(self, event):
        with contextlib.suppress(GLib.Error):  # a part may have gone meanwhile
            if event.detail1 == 1 and Part(event.source).role == NOTIFICATION:
                self._heard.append(Part(event.source).name)

    def heard(self):
        """The texts so far."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self._heard
