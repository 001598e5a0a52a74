"""What the build makes of a layout and a strings table."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

from localised.shown import texts_of_layout
from localised.tables import decode, parse

STEPS = pathlib.Path(__file__).resolve().parents[2] / "script" / "lib" / "localised"

LAYOUT = """<?xml version="1.0" encoding="UTF-8"?>
<document><window title="Launch" id="Launch"><textField toolTip="Say “hi”" placeholderString="Launch"/>
<menuItem title="Not in the table"/></window></document>
"""
TABLE = '/* Button */ "Launch" = "Avvia & via"; "Say “hi”" = "Di’ \\"ciao\\""; "Vorx Launcher" = "Vorx-\\"L\\"";'
INFORMATION = """<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>CFBundleDisplayName</key><string>VorxLauncher</string>
<key>CFBundleName</key><string>Vorx Launcher</string>
<key>CFBundleVersion</key><string>${VERSION}</string>
<key>NSLocalNetworkUsageDescription</key><string>Launch</string>
</dict></plist>
"""


class BuildStepsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_step(self, name, **inputs):
        """Writes the inputs to files, runs a step on them and returns what the step writes."""
        files = []
        for suffix, text in inputs.items():
            files.append(self.folder / f"input.{suffix}")
            files[-1].write_text(text, encoding="utf-8-sig" if suffix == "strings" else "utf-8")
        output = self.folder / "output"
        subprocess.run([sys.executable, STEPS / f"{name}.py", *files, output], check=True)
        return output.read_bytes()

    def test_a_layout_shows_the_tables_texts_and_keeps_all_else(self):
        written = self.run_step("translate_layout", xib=LAYOUT, strings=TABLE)
        self.assertEqual(texts_of_layout(written),
                         {"Avvia & via", 'Di’ "ciao"', "Not in the table"})
        self.assertIn(b'id="Launch"', written)
        self.assertIn(b'placeholderString="Launch"', written)

    def test_macos_says_the_tables_texts_of_the_application(self):
        written = self.run_step("bundle_texts", plist=INFORMATION, strings=TABLE)
        self.assertEqual({entry.key: entry.text for entry in parse(decode(written))}, {
            "CFBundleDisplayName": 'Vorx-"L"', "CFBundleName": 'Vorx-"L"',
            "NSLocalNetworkUsageDescription": "Avvia & via"})
