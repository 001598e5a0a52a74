"""The layout resources, which only a Mac can compile: what they name exists in the program."""

import unittest
import xml.etree.ElementTree

import machofile
from product import ARCHITECTURES, PROGRAM, ROOT, build

LAYOUTS = ROOT / "resources" / "Base.lproj"

FILES_OWNER = "-2"
FIRST_RESPONDER = "-1"

# The platform's own classes and outlets that the layouts name.
PLATFORM_CLASSES = {"NSApplication", "NSObject", "FirstResponder"}
PLATFORM_OUTLETS = {"contentViewController", "delegate", "nextKeyView", "view"}

# The actions that people expect of the menus on macOS, sent to whatever has the focus.
MENU_ACTIONS = {
    "hide:", "hideOtherApplications:", "unhideAllApplications:", "terminate:", "undo:", "redo:",
    "cut:", "copy:", "paste:", "selectAll:", "performClose:", "performMiniaturize:", "performZoom:",
    "arrangeInFront:",
}

# Xcode's layout files without Auto Layout never hold these attributes.
FOREIGN_ATTRIBUTES = {"useAutolayout", "fixedFrame"}


def setUpModule():
    build()


def layout(name):
    return xml.etree.ElementTree.parse(LAYOUTS / f"{name}.xib").getroot()


def owner_class(root):
    return root.find(f".//*[@id='{FILES_OWNER}']").get("customClass")


def setter(outlet):
    return f"set{outlet[0].upper()}{outlet[1:]}:"


def parents(root):
    return {child: parent for parent in root.iter() for child in parent}


def edges(element):
    """The lower and the upper edge. A view's own coordinates start at its bottom."""
    frame = element.find("rect[@key='frame']")
    lower = float(frame.get("y"))
    return lower, lower + float(frame.get("height"))


def label_above(root, field):
    """The title of the nearest text above a field."""
    upper = edges(field)[1]
    labels = [text for text in root.iter("textField")
              if text.find("textFieldCell").get("editable") == "NO" and edges(text)[0] >= upper]
    return min(labels, key=lambda label: edges(label)[0]).find("textFieldCell").get("title")


def role(root, element):
    """A name by which a person would recognise it."""
    if element.get("id") == FILES_OWNER:
        return "owner"
    if element.tag == "textField":
        cell = element.find("textFieldCell")
        if cell.get("editable") == "YES":
            return f"field below '{label_above(root, element)}'"
        return f"text '{cell.get('title')}'"
    if element.tag == "button":
        return f"button '{element.find('buttonCell').get('title')}'"
    return " ".join(filter(None, [element.tag, element.get("customClass"), element.get("nibName")]))


def connections(root):
    """Every outlet: its source, its name and its target."""
    parent = parents(root)
    return sorted((role(root, parent[parent[outlet]]), outlet.get("property"),
                   role(root, root.find(f".//*[@id='{outlet.get('destination')}']")))
                  for outlet in root.iter("outlet"))


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

    def test_each_outlet_leads_to_the_control_of_that_name(self):
        location, address = "field below 'Vorx location'", "field below 'IP address'"
        launch = "button 'Launch'"
        self.assertEqual(connections(layout("ViewController")), sorted([
            ("owner", "infoLabel", "text 'Enter valid Vorx location to enable launch button'"),
            ("owner", "ipAddress", address),
            ("owner", "launchButton", launch),
            ("owner", "view", "view"),
            ("owner", "vorxLocation", location),
            (location, "delegate", "owner"),
            (address, "delegate", "owner"),
            (location, "nextKeyView", address),
            (address, "nextKeyView", launch),
            (launch, "nextKeyView", location),
            ("view", "nextKeyView", location),
        ]))

    def test_application_has_its_delegate_and_the_window_its_controller(self):
        self.assertEqual(connections(layout("MainMenu")), [
            ("owner", "delegate", "customObject AppDelegate"),
            ("window", "contentViewController", "viewController ViewController ViewController"),
        ])

    def test_actions_exist(self):
        root = layout("ViewController")
        actions = [(element.get("selector"), element.get("target"))
                   for element in root.iter("action")]
        self.assertEqual(actions, [("launchButtonClick:", FILES_OWNER)])
        self.assertIn("launchButtonClick:", self.messages["ViewController"])

    def test_menu_is_complete(self):
        actions = {element.get("selector") for element in layout("MainMenu").iter("action")
                   if element.get("target") == FIRST_RESPONDER}
        self.assertEqual(actions, MENU_ACTIONS)

    def test_about_shows_our_panel(self):
        root = layout("MainMenu")
        [(action, target)] = [(element.get("selector"), element.get("target"))
                              for element in root.iter("action")
                              if element.get("target") != FIRST_RESPONDER]
        self.assertEqual(root.find(f".//*[@id='{target}']").get("customClass"), "AboutPanel")
        self.assertIn(action, self.messages["AboutPanel"])

    def test_the_system_fills_its_menus(self):
        menus = {element.get("systemMenu") for element in layout("MainMenu").iter("menu")} - {None}
        self.assertEqual(menus, {"main", "apple", "services", "window"})

    def test_the_window_is_not_restored_and_stays_among_the_other_ones(self):
        """A floating window would be left out of Mission Control and of the window cycle."""
        window = layout("MainMenu").find(".//window")
        self.assertEqual(window.get("restorable"), "NO")
        self.assertEqual(window.find("windowCollectionBehavior").attrib, {
            "key": "collectionBehavior", "managed": "YES", "participatesInCycle": "YES"})

    def test_fields_are_named_by_their_labels(self):
        cells = layout("ViewController").iter("textFieldCell")
        labels = {cell.get("title") for cell in cells if cell.get("title")}
        spoken = [element.get("description") for element in layout("ViewController").iter("accessibility")]
        self.assertEqual(spoken, ["Vorx location", "IP address"])
        self.assertLessEqual(set(spoken), labels)

    def test_layouts_hold_what_those_of_xcode_hold(self):
        for path in LAYOUTS.glob("*.xib"):
            with self.subTest(layout=path.name):
                attributes = {name for element in layout(path.stem).iter() for name in element.attrib}
                self.assertEqual(attributes & FOREIGN_ATTRIBUTES, set())

    def test_fields_show_the_colour_of_their_layer(self):
        """A field's own background would hide it."""
        fields = [cell for cell in layout("ViewController").iter("textFieldCell")
                  if cell.get("editable") == "YES"]
        self.assertEqual(len(fields), 2)
        self.assertEqual([cell.get("drawsBackground") for cell in fields], [None, None])


if __name__ == "__main__":
    unittest.main()
