"""What a screen reader sees of a program: its windows and all that is in them, by role and name."""

import contextlib

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Makes a program tell the screen reader about itself before one has asked.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

LABEL, FIELD, BUTTON, ALERT, NOTIFICATION = "label", "text", "button", "alert", "notification"
_OLD_NAMES = {"push button": BUTTON}

Atspi.set_timeout(10_000, 60_000)


class Part:
    """A window or something in it. It is asked anew each time; gone, it answers with an error."""

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
        """What a field holds."""
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
        """Whether a window is the one that the keys go to."""
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
        """Everything below of a role, in the order of the window."""
        found = []
        for part in self.parts():
            found += ([part] if part.role == role else []) + part.all(role)
        return found

    def find(self, role, name=None):
        """The first part of a role, and of a name where one is given; None where there is none."""
        with contextlib.suppress(GLib.Error):  # something that has gone meanwhile
            return next((part for part in self.all(role) if name in (None, part.name)), None)

    def find_window(self, name):
        with contextlib.suppress(GLib.Error):
            return next((part for part in self.parts() if part.name == name), None)

    def find_alert(self):
        """The first part that is an alert with a button."""
        with contextlib.suppress(GLib.Error):
            return next((part for part in self.all(ALERT) if part.find(BUTTON)), None)


def program(process):
    """A running program, whose parts are its windows; None until it is known."""
    with contextlib.suppress(GLib.Error):
        for part in Part(Atspi.get_desktop(0)).parts():
            if part._accessible.get_process_id() == process:
                part._accessible.set_cache_mask(Atspi.Cache.NONE)
                return part


class Announcements:
    """What a screen reader says during the `with` block: what a notification is called when it is
    shown."""

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
        with contextlib.suppress(GLib.Error):  # what has gone meanwhile
            if event.detail1 == 1 and Part(event.source).role == NOTIFICATION:
                self._heard.append(Part(event.source).name)

    def heard(self):
        """The texts so far."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self._heard
