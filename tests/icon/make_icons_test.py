"""The icon's forms, made from the project's drawing."""

import pathlib
import struct
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAKER = ROOT / "packaging" / "icon" / "make-icons"
DRAWING = ROOT / "resources" / "icon.svg"

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


def size_of_png(data):
    """Width and height from the header, which comes first in every PNG."""
    signature, name, width, height = struct.unpack(">8s4x4sII", data[:24])
    assert (signature, name) == (PNG_SIGNATURE, b"IHDR"), data[:24]
    return width, height


def chunks(data):
    position = 0
    while position < len(data):
        name, length = struct.unpack_from(">4sI", data, position)
        yield name, data[position + 8:position + length]
        position += length


class MakeIconsTest(unittest.TestCase):
    def make(self, *names, drawing=DRAWING):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        paths = [pathlib.Path(folder.name) / name for name in names]
        done = subprocess.run([MAKER, drawing, *paths], stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        return done, [path.read_bytes() if path.exists() else None for path in paths]

    def test_png(self):
        done, [picture] = self.make("icon.png")
        self.assertEqual((done.returncode, done.stdout), (0, ""))
        self.assertEqual(size_of_png(picture), (128, 128))

    def test_icns_is_one_chunk_that_holds_every_size(self):
        done, [container] = self.make("icon.icns")
        self.assertEqual((done.returncode, done.stdout), (0, ""))
        [(name, content)] = chunks(container)
        self.assertEqual(name, b"icns")
        self.assertEqual({name: size_of_png(picture) for name, picture in chunks(content)},
                         {b"ic11": (32, 32), b"ic12": (64, 64), b"ic07": (128, 128),
                          b"ic08": (256, 256), b"ic13": (256, 256), b"ic09": (512, 512),
                          b"ic14": (512, 512), b"ic10": (1024, 1024)})

    def test_several_at_once(self):
        done, pictures = self.make("icon.png", "icon.icns")
        self.assertEqual(done.returncode, 0)
        self.assertNotIn(None, pictures)

    def test_form_that_no_platform_wants(self):
        done, [picture] = self.make("icon.bmp")
        self.assertEqual((done.returncode, done.stdout), (1, "make-icons: no icon of the form '.bmp'\n"))
        self.assertIsNone(picture)

    def test_drawing_that_is_not_there(self):
        done, [picture] = self.make("icon.png", drawing=ROOT / "no-such.svg")
        self.assertNotEqual(done.returncode, 0)
        self.assertIsNone(picture)
