"""docs/macos.md names every call that the application makes, and tests that exist."""

import re
import unittest

import machofile
from product import ARCHITECTURES, PROGRAM, ROOT, build

DOCUMENT = (ROOT / "docs" / "macos.md").read_text()

# The calls into the system's library that belong neither to C nor to C++.
SYSTEM_CALLS = r"_(dispatch_\w+|getnameinfo|getxattr|inet_pton|kill|sysctl)"
FRAMEWORKS = {"AppKit", "CFNetwork", "CoreFoundation", "CoreGraphics", "Foundation", "QuartzCore"}


def setUpModule():
    build()


def calls():
    """The classes, functions and constants that the program takes from the system."""
    for symbol, library in machofile.undefined_symbols(PROGRAM, ARCHITECTURES[0]).items():
        name = re.sub(r"^_(OBJC_\w+_\$_)?", "", symbol)
        from_framework = (library or "").removeprefix("from ") in FRAMEWORKS
        if from_framework and not name.startswith("_") or re.fullmatch(SYSTEM_CALLS, symbol):
            yield name


def names_of_tests():
    """Every test as Suite.Name, and every suite."""
    for path in (ROOT / "tests").rglob("*Test.*"):
        for suite, name in re.findall(r"^TEST(?:_F|_P)?\((\w+), (\w+)\)", path.read_text(), re.M):
            yield f"{suite}.{name}"
            yield suite


class Document(unittest.TestCase):
    def test_every_call_has_its_row(self):
        named = set(re.findall(r"\w+", "".join(re.findall(r"^\| `.*", DOCUMENT, re.M))))
        self.assertIn("sysctl", set(calls()))
        self.assertEqual(set(calls()) - named, set())

    def test_every_test_exists(self):
        named = set(re.findall(r"\b\w+Test\b(?:\.\w+)?", DOCUMENT))
        self.assertIn("ProcessTableTest", named)
        self.assertEqual(named - set(names_of_tests()), set())


if __name__ == "__main__":
    unittest.main()
