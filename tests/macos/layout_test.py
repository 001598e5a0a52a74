"""The layout resources, which only a Mac can compile: what they name exists in the program."""

import unittest
import xml.etree.ElementTree

import machofile
from product import ARCHITECTURES, PROGRAM, ROOT, build

LAYOUTS = ROOT / "resources" / "Base.lproj"

FILES_OWNER = "-2"
FIRST_RESPONDER = "-1"

# The platform's own, as far as the layouts name them.
PLATFORM_CLASSES = {"NSApplication", "NSObject", "FirstResponder"}
PLATFORM_OUTLETS = {"contentViewController", "delegate", "nextKeyView", "view"}

# What people expect of a menu on macOS, sent to whatever has the focus.
MENU_ACTIONS = {
    "orderFrontStandardAboutPanel:", "hide:", "terminate:", "undo:", "cut:", "copy:", "paste:",
    "selectAll:", "performMiniaturize:", "performClose:",
}


def setUpModule():
    build()


def layout(name):
    return xml.etree.ElementTree.parse(LAYOUTS / f"{name}.xib").getroot()


def owner_class(root):
    return root.find(f".//*[@id='{FILES_OWNER}']").get("customClass")


def setter(outlet):
    return f"set{outlet[0].upper()}{outlet[1:]}:"


class Layouts(unittest.TestCase):
    def setUp(self):
        self.messages = machofile.messages(PROGRAM, ARCHITECTURES[0])

    def test_classes_exist(self):
        known = PLATFORM_CLASSES | self.messages.keys()
        for path in LAYOUTS.glob("*.xib"):
            with self.subTest(layout=path.name):
                named = {element.get("customClass") for element in layout(path.stem).iter()}
                self.assertEqual(named - {None} - known, set())

    def test_outlets_exist(self):
        root = layout("ViewController")
        outlets = {element.get("property") for element in root.iter("outlet")} - PLATFORM_OUTLETS
        self.assertEqual(outlets, {"launchButton", "infoLabel", "vorxLocation", "ipAddress"})
        self.assertEqual(owner_class(root), "ViewController")
        for outlet in outlets:
            self.assertIn(setter(outlet), self.messages["ViewController"])

    def test_actions_exist(self):
        root = layout("ViewController")
        actions = [(element.get("selector"), element.get("target"))
                   for element in root.iter("action")]
        self.assertEqual(actions, [("launchButtonClick:", FILES_OWNER)])
        self.assertIn("launchButtonClick:", self.messages["ViewController"])

    def test_menu_is_complete(self):
        actions = {element.get("selector"): element.get("target")
                   for element in layout("MainMenu").iter("action")}
        self.assertLessEqual(MENU_ACTIONS, actions.keys())
        self.assertEqual(set(actions.values()), {FIRST_RESPONDER})

    def test_fields_show_the_colour_of_their_layer(self):
        """A field that draws a background of its own would hide it."""
        fields = [cell for cell in layout("ViewController").iter("textFieldCell")
                  if cell.get("editable") == "YES"]
        self.assertEqual(len(fields), 2)
        self.assertEqual([cell.get("drawsBackground") for cell in fields], [None, None])


if __name__ == "__main__":
    unittest.main()
