"""LLVM's static analyzer follows the macOS sources through their branches."""

import unittest

from product import BUILD, ROOT, build, output_of

ROOMS = ["base", "process", "net", "discovery", "controller", "viewer", "app"]


def setUpModule():
    build()


class Analysis(unittest.TestCase):
    def test_finds_nothing(self):
        output_of("cmake", "--build", "--preset", "mac-cross", "--target", "analysis",
                  "--", "-k", "0")

    def test_looks_at_every_file(self):
        sources = {str(path.relative_to(ROOT)) for room in ROOMS for ending in ("mm", "cpp")
                   for path in (ROOT / room / "mac").glob(f"*.{ending}")}
        self.assertGreater(len(sources), 20)
        marks = BUILD / "analysis"
        analysed = {str(mark.relative_to(marks)).removesuffix(".d") for mark in marks.rglob("*.d")}
        self.assertEqual(sources - analysed, set())


if __name__ == "__main__":
    unittest.main()
