"""The project's own tables agree with its code and layout."""

import pathlib
import plistlib
import unittest

from faults import faults, faults_of_english
from localised.shown import texts_of_code, texts_of_information, texts_of_layout
from localised.tables import decode, parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
RESOURCES = ROOT / "resources"
LANGUAGES = plistlib.loads((RESOURCES / "Info.plist").read_bytes())["CFBundleLocalizations"]


def read(language):
    return parse(decode((RESOURCES / f"{language}.lproj" / "Localizable.strings").read_bytes()))


def comments_of_what_is_shown():
    """Each shown text with its comment: from the code, or else from the English table."""
    of_code = {}
    for path in sorted(ROOT.glob("controller/**/*.[hc]*")):
        of_code |= texts_of_code(path.read_text(encoding="utf-8"))
    of_english = {entry.key: entry.comment for entry in read("en")}
    layouts = sorted(RESOURCES.glob("**/*.xib"))
    elsewhere = {text for xib in layouts for text in texts_of_layout(xib.read_bytes())}
    elsewhere |= set(texts_of_information((RESOURCES / "Info.plist").read_bytes()).values())
    return {text: of_english.get(text) for text in elsewhere} | of_code


class ProjectTest(unittest.TestCase):
    def test_every_language_has_its_folder_and_every_folder_is_a_language(self):
        folders = {path.stem for path in RESOURCES.glob("*.lproj")} - {"Base"}
        self.assertIn("en", folders)
        self.assertEqual(folders, set(LANGUAGES))

    def test_the_code_and_the_layout_were_read(self):
        shown = comments_of_what_is_shown()
        self.assertEqual(shown["Re-Launch"], "Re-Launch button")
        self.assertIn("Quit Vorx Launcher", shown)

    def test_every_reason_for_an_access_was_read(self):
        named = texts_of_information((RESOURCES / "Info.plist").read_bytes())
        self.assertEqual(set(named), {
            "CFBundleDisplayName", "CFBundleName", "NSDesktopFolderUsageDescription",
            "NSDocumentsFolderUsageDescription", "NSDownloadsFolderUsageDescription",
            "NSLocalNetworkUsageDescription"})

    def test_tables_agree_with_code_and_layout(self):
        comments = comments_of_what_is_shown()
        for language in LANGUAGES:
            with self.subTest(language):
                self.assertEqual(list(faults(read(language), comments)), [])

    def test_every_text_has_a_comment(self):
        silent = [key for key, comment in comments_of_what_is_shown().items() if not comment]
        self.assertEqual(silent, [])

    def test_english_says_its_keys(self):
        self.assertEqual(faults_of_english(read("en")), [])
