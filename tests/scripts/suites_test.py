"""Every suite is documented."""

import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class SuitesTest(unittest.TestCase):
    def test_each_is_explained(self):
        listed = subprocess.run(["ctest", "--test-dir", ROOT / "build", "-C", "by-name", "--print-labels"],
                                check=True, text=True, stdout=subprocess.PIPE).stdout
        suites = re.findall(r"^  (\S+)$", listed, re.MULTILINE)
        explained = re.findall(r"^\| `([\w-]+)` \|", (ROOT / "CONTRIBUTING.md").read_text(), re.MULTILINE)
        self.assertIn("unit", suites)
        self.assertEqual(sorted(suites), sorted(explained))


if __name__ == "__main__":
    unittest.main()
