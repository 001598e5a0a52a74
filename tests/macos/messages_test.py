"""The messages that the application's classes answer, in the order of their list. The layout resources
and the platform call the classes by these names."""

import unittest

import machofile
from product import ARCHITECTURES, PROGRAM, build

VIEW_CONTROLLER = [
    "launchButton", "setLaunchButton:", "infoLabel", "setInfoLabel:", "vorxLocation",
    "setVorxLocation:", "ipAddress", "setIpAddress:", "backgroundQueue", "viewDidLoad",
    "viewWillAppear", "representedObject", "setRepresentedObject:",
    "getIpAddressWithDomain:manualIP:", "launchButtonClick:", "updateState",
    "extractWhereAreYouFromUrl:", "processDMGDataWithPlist:", "updateSourceLocationWithSource:",
    "searchDMGs", "extractSourceFromDMG", "controlTextDidChange:", "initWithNibName:bundle:",
    "initWithCoder:",
]

APP_DELEGATE = [
    "init", "applicationDidFinishLaunching:", "applicationWillTerminate:",
    "applicationShouldTerminateAfterLastWindowClosed:",
]

# The language's own: the end of an object, and the beginning and end of its C++ members.
OF_THE_LANGUAGE = {"dealloc", ".cxx_construct", ".cxx_destruct"}


def setUpModule():
    build()


class Messages(unittest.TestCase):
    def check(self, name, expected):
        for architecture in ARCHITECTURES:
            with self.subTest(architecture=architecture):
                answered = machofile.messages(PROGRAM, architecture)[name]
                self.assertEqual(
                    [message for message in answered if message not in OF_THE_LANGUAGE], expected)

    def test_view_controller(self):
        self.check("ViewController", VIEW_CONTROLLER)

    def test_app_delegate(self):
        self.check("AppDelegate", APP_DELEGATE)


if __name__ == "__main__":
    unittest.main()
