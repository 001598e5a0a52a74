"""The bundle: what it says about itself, and where its files are."""

import os
import plistlib
import unittest

from localised import tables
from product import BUNDLE, CONTENTS, PROGRAM, RESOURCES, ROOT, VIEWER, WINDOW_TESTS, build

LANGUAGES = sorted(table.parent.stem
                   for table in (ROOT / "resources").glob("*.lproj/Localizable.strings"))

FOLDER_REASON = "To find your Vorx, the launcher reads where its disk image was downloaded from."
REASONS = {
    "NSDesktopFolderUsageDescription": FOLDER_REASON,
    "NSDocumentsFolderUsageDescription": FOLDER_REASON,
    "NSDownloadsFolderUsageDescription": FOLDER_REASON,
    "NSLocalNetworkUsageDescription":
        "Remote control connects to your Vorx, which may be on the local network.",
}

INFORMATION = REASONS | {
    "CFBundleDevelopmentRegion": "en",
    "CFBundleDisplayName": "VorxLauncher",
    "CFBundleExecutable": "VorxLauncher",
    "CFBundleIconFile": "VorxLauncher",
    "CFBundleIdentifier": "example.vorx.launcher",
    "CFBundleInfoDictionaryVersion": "6.0",
    "CFBundleLocalizations": LANGUAGES,
    "CFBundleName": "Vorx Launcher",
    "CFBundlePackageType": "APPL",
    "CFBundleShortVersionString": "1.0.0",
    "CFBundleVersion": "1.0.0",
    "LSApplicationCategoryType": "public.app-category.utilities",
    "LSHasLocalizedDisplayName": True,
    "LSMinimumSystemVersion": "11.0",
    "NSHighResolutionCapable": True,
    "NSMainNibFile": "MainMenu",
    "NSPrincipalClass": "NSApplication",
    "NSRequiresAquaSystemAppearance": True,
    "NSSupportsAutomaticTermination": False,
    "NSSupportsSuddenTermination": False,
}


def setUpModule():
    build()


def table(path):
    return {entry.key: entry.text for entry in tables.parse(tables.decode(path.read_bytes()))}


def files():
    return sorted(str(path.relative_to(CONTENTS)) for path in CONTENTS.rglob("*")
                  if not path.is_dir())


class Bundle(unittest.TestCase):
    def test_information(self):
        self.assertEqual(plistlib.loads((CONTENTS / "Info.plist").read_bytes()), INFORMATION)

    def test_layout(self):
        """The bundle holds exactly these files. The layout resources are missing, since only a Mac can
        compile them; a note says so."""
        localised = [f"Resources/{language}.lproj/{name}.strings"
                     for language in LANGUAGES for name in ("InfoPlist", "Localizable")]
        self.assertEqual(files(), sorted([
            "Info.plist", "MacOS/VorxLauncher", "Resources/NOT-FOR-RELEASE.txt",
            "Resources/VorxLauncher.icns", "Resources/bin/vexlink", *localised]))

    def test_programs_can_be_run_and_nothing_else(self):
        executable = [path for path in BUNDLE.rglob("*")
                      if path.is_file() and os.access(path, os.X_OK)]
        self.assertEqual(sorted(executable), sorted([PROGRAM, VIEWER]))

    def test_texts(self):
        for language in LANGUAGES:
            with self.subTest(language=language):
                name = f"{language}.lproj/Localizable.strings"
                self.assertEqual((RESOURCES / name).read_bytes(),
                                 (ROOT / "resources" / name).read_bytes())

    def test_names_and_reasons_are_in_the_persons_language(self):
        for language in LANGUAGES:
            with self.subTest(language=language):
                folder = RESOURCES / f"{language}.lproj"
                texts = table(folder / "Localizable.strings")
                said = {"CFBundleName": texts["Vorx Launcher"],
                        "CFBundleDisplayName": texts["Vorx Launcher"]}
                said |= {name: texts[reason] for name, reason in REASONS.items()}
                self.assertEqual(table(folder / "InfoPlist.strings"), said)

    def test_window_tests_meet_the_same_resources(self):
        self.assertEqual((WINDOW_TESTS / "Resources").resolve(), RESOURCES)
        information = plistlib.loads((WINDOW_TESTS / "Info.plist").read_bytes())
        self.assertEqual(information["CFBundleExecutable"], "appkit-window-tests")

    def test_icon(self):
        self.assertEqual((RESOURCES / "VorxLauncher.icns").read_bytes()[:4], b"icns")


if __name__ == "__main__":
    unittest.main()
