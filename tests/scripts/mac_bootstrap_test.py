"""script/bootstrap on a Mac, with stand-ins for the system's tools: it says what is missing."""

import os
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

TOOLS = {"cmake": "", "ninja": "", "pytest": "", "rsvg-convert": "",
         "uname": "echo Darwin", "xcodebuild": "echo Xcode 16.1"}
NEEDED = ["bash", "basename", "dirname", "sed"]


class MacBootstrap(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.header = self.folder / "include" / "gtest" / "gtest.h"
        self.header.parent.mkdir(parents=True)
        self.header.touch()
        for name in NEEDED:
            path = subprocess.run(["which", name], text=True, stdout=subprocess.PIPE).stdout.strip()
            (self.folder / name).symlink_to(path)
        for name, commands in TOOLS.items():
            self.make_tool(name, commands)
        self.make_tool("brew", f"echo {self.folder}")

    def make_tool(self, name, commands):
        tool = self.folder / name
        tool.write_text(f"#!/bin/sh\n{commands}\n")
        tool.chmod(0o755)

    def bootstrap(self):
        done = subprocess.run([ROOT / "script" / "bootstrap"], text=True, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              env={"PATH": str(self.folder)})
        return done.returncode, done.stdout

    def test_nothing_is_missing(self):
        self.assertEqual(self.bootstrap(), (0, ""))

    def test_says_what_is_missing(self):
        self.header.unlink()
        for name in ("ninja", "rsvg-convert"):
            (self.folder / name).unlink()
        self.assertEqual(self.bootstrap(), (1, (
            "script/bootstrap: needs Homebrew's ninja librsvg googletest; "
            "install with: brew install ninja librsvg googletest\n")))

    def test_an_old_xcode_or_none(self):
        said = ("script/bootstrap: needs Xcode 15 or later; install it, then: "
                "sudo xcode-select -s /Applications/Xcode.app\n")
        self.make_tool("xcodebuild", "echo Xcode 14.3.1")
        self.assertEqual(self.bootstrap(), (1, said))
        (self.folder / "xcodebuild").unlink()
        self.assertEqual(self.bootstrap(), (1, said))


if __name__ == "__main__":
    unittest.main()
