"""The launcher's window: where its controls are, and what can be seen in them."""

import pathlib
import xml.etree.ElementTree as ElementTree

from desktop.window import Window

PROGRAM = "VorxLauncher"
_LAYOUT = pathlib.Path(__file__).resolve().parents[3] / "resources/Base.lproj/ViewController.xib"


def _layout():
    """Left, bottom, width and height of the controls, by the names of their outlets, as the layout
    resource has them."""
    document = ElementTree.parse(_LAYOUT)
    frames = {}
    for view in document.iter():
        frame = view.find("rect[@key='frame']")
        if frame is not None:
            frames[view.get("id")] = [round(float(frame.get(side)))
                                      for side in ("x", "y", "width", "height")]
    return {outlet.get("property"): frames[outlet.get("destination")]
            for outlet in document.iter("outlet") if outlet.get("destination") in frames}


class LauncherWindow(Window):
    """The launcher's window in the size that the layout resource gives it."""

    def __init__(self, identifier):
        super().__init__(identifier)
        self._controls = _layout()

    @classmethod
    def shown(cls):
        return cls.of(PROGRAM)

    def frame(self, control):
        """A control's left, top, width and height in the window."""
        left, bottom, width, height = self._controls[control]
        return left, self.geometry()[3] - bottom - height, width, height

    def picture_of(self, control):
        return self.picture().crop(*self.frame(control))

    def click_on(self, control):
        left, top, width, height = self.frame(control)
        self.click(left + width // 2, top + height // 2)

    def has_location(self):
        """Whether the location field shows a text. What it shows while empty is pale; until it is
        painted for the first time it may be black all over."""
        left, top, width, height = self.frame("vorxLocation")
        inside = self.picture().crop(left + 4, top + 4, width - 8, height - 8)
        return 10 < inside.inked_columns() < inside.width
