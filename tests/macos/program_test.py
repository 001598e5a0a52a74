"""The programs, as the loader of a Mac sees them."""

import unittest

import machofile
from product import ARCHITECTURES, PROGRAM, TEST_PROGRAMS, VIEWER, build

FRAMEWORKS = ["AppKit", "CFNetwork", "CoreFoundation", "CoreGraphics", "Foundation", "QuartzCore"]
LIBRARIES = ["libSystem.B.dylib", "libc++.1.dylib", "libobjc.A.dylib"]

# The names that other programs and the system know.
NAMES = {"/usr/bin/hdiutil", "info", "-plist", "com.apple.metadata:kMDItemWhereFroms",
         "/bin/", "vexlink", "-l", "-i", "-r", "vexwatch"}


def setUpModule():
    build()


class Programs(unittest.TestCase):
    def check_each(self, programs, check):
        for program in programs:
            for architecture in machofile.architectures(program):
                with self.subTest(program=program.name, architecture=architecture):
                    check(program, architecture)

    def test_universal(self):
        for program in [PROGRAM, VIEWER]:
            with self.subTest(program=program.name):
                self.assertEqual(machofile.architectures(program), ARCHITECTURES)

    def test_runs_on_macos_11(self):
        def check(program, architecture):
            self.assertEqual(machofile.platform_and_minimum(program, architecture),
                             ("macos", "11.0"))
        self.check_each([PROGRAM, VIEWER, *TEST_PROGRAMS], check)

    def test_loads_exactly_what_is_needed(self):
        def check(program, architecture):
            self.assertEqual(machofile.libraries(program, architecture),
                             sorted(FRAMEWORKS + LIBRARIES))
        self.check_each([PROGRAM], check)

    def test_names_what_it_asks(self):
        def check(program, architecture):
            self.assertEqual(NAMES - machofile.literals(program, architecture), set())
        self.check_each([PROGRAM], check)

    def test_every_symbol_has_its_library(self):
        def check(program, architecture):
            symbols = machofile.undefined_symbols(program, architecture)
            self.assertIn("_objc_msgSend", symbols)
            self.assertEqual([name for name, library in symbols.items() if library is None], [])
        self.check_each([PROGRAM, *TEST_PROGRAMS], check)

    def test_no_symbol_is_looked_up_everywhere(self):
        def check(program, architecture):
            bindings = machofile.bindings(program, architecture)
            self.assertTrue(any("_objc_msgSend" in line for line in bindings))
            self.assertEqual([line for line in bindings if "flat" in line], [])
        self.check_each([PROGRAM, *TEST_PROGRAMS], check)


if __name__ == "__main__":
    unittest.main()
