"""The disk image, as far as Linux can make it."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

from product import BUNDLE, ROOT, VIEWER, build, output_of

MAKE_IMAGE = ROOT / "packaging" / "mac" / "make-image"
SEVENZIP = shutil.which("7zz") or shutil.which("7z")


def setUpModule():
    build()


class Image(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.image = self.folder / "launcher.dmg"

    def entries(self):
        """Path → mode, of everything in the image."""
        entries, path = {}, None
        for line in output_of(SEVENZIP, "l", "-slt", "-tHFS", self.image).splitlines():
            if line.startswith("Path = "):
                path = line.removeprefix("Path = ")
            elif line.startswith("Mode = "):
                entries[path] = line.removeprefix("Mode = ")
        return entries

    def refusal(self, *arguments):
        done = subprocess.run([MAKE_IMAGE, *map(str, arguments)], text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)
        self.assertNotEqual(done.returncode, 0)
        self.assertFalse(self.image.exists())
        return done.stderr

    def test_application_at_the_top_of_its_volume(self):
        output_of(MAKE_IMAGE, BUNDLE, self.image)
        entries = self.entries()
        top = "Vorx Launcher/VorxLauncher.app"
        self.assertEqual([path for path in entries
                          if path.count("/") == 1 and "HFS+ Private" not in path], [top])
        self.assertEqual(entries[top], "drwxr-xr-x")
        self.assertEqual(entries[f"{top}/Contents/MacOS/VorxLauncher"], "-rwxr-xr-x")
        self.assertEqual(entries[f"{top}/Contents/Resources/bin/vexlink"], "-rwxr-xr-x")
        self.assertEqual(entries[f"{top}/Contents/Info.plist"], "-rw-r--r--")

    def test_says_that_a_bundle_without_layout_resources_cannot_start(self):
        self.assertIn("cannot start", output_of(MAKE_IMAGE, BUNDLE, self.image))

    def test_another_viewer_and_volume(self):
        viewer = self.folder / "some viewer"
        viewer.write_text("#!/bin/sh\n")
        output_of(MAKE_IMAGE, "--viewer", viewer, "--volume", "Vörx", BUNDLE, self.image)
        inside = [path for path in self.entries() if path.endswith("/bin/vexlink")]
        self.assertEqual(len(inside), 1)
        self.assertEqual(self.entries()[inside[0]], "-rwxr-xr-x")
        extracted = output_of(SEVENZIP, "e", "-so", "-tHFS", self.image, inside[0])
        self.assertIn("#!/bin/sh", extracted)

    def test_leaves_the_application_as_it_is(self):
        before = VIEWER.read_bytes()
        viewer = self.folder / "viewer"
        viewer.write_text("#!/bin/sh\n")
        output_of(MAKE_IMAGE, "--viewer", viewer, BUNDLE, self.image)
        self.assertEqual(VIEWER.read_bytes(), before)

    def test_refusals(self):
        empty = self.folder / "Empty.app"
        shutil.copytree(BUNDLE, empty)
        shutil.rmtree(empty / "Contents" / "Resources" / "bin")
        for arguments, message in [
            ((), "takes an application and an image; --help tells more"),
            (("--colour", "red"), "unknown option --colour; --help tells which there are"),
            (("--volume",), "--volume needs a value"),
            ((self.folder, self.image), f"no application: {self.folder}"),
            ((BUNDLE, self.folder / "image.iso"),
             f"the image's name must end in .dmg: {self.folder}/image.iso"),
            (("--viewer", "/no/such", BUNDLE, self.image), "no such file: /no/such"),
            ((empty, self.image), "the application holds no viewer; give one with --viewer"),
            (("--identity", "Somebody", BUNDLE, self.image), "signing and notarising need a Mac"),
        ]:
            with self.subTest(arguments=arguments):
                self.assertEqual(self.refusal(*arguments), f"make-image: {message}\n")


if __name__ == "__main__":
    unittest.main()
