"""Whether the application carries what it needs, as far as this machine can tell."""

import contextlib
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
APPLICATION = ROOT / "build/VorxLauncher.app"
WITH_A_WINDOW = ["VorxLauncher", "Resources/bin/vexlink"]
LISTING_TOOL = "Resources/bin/attached-images"
MAKE_IMAGE = ROOT / "packaging/linux/make-image"
MOST_BYTES = 35_000_000


def output_of(*command):
    return subprocess.run([str(word) for word in command], check=True, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout


def left_to_the_machine():
    lines = (ROOT / "packaging/linux/machine-libraries").read_text().splitlines()
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def executables_and_libraries(application):
    return [file for file in application.rglob("*")
            if file.is_file() and file.read_bytes()[:4] == b"\x7fELF"]


def needed_by(file):
    """The names of the libraries that a file links to."""
    return set(re.findall(r"\(NEEDED\).*\[(.*)\]", output_of("readelf", "-dW", file)))


def wanting(application):
    """The libraries that the application needs, but neither carries nor leaves to the machine."""
    needed = set().union(*map(needed_by, executables_and_libraries(application)))
    carried = {file.name for file in (application / "lib").iterdir()}
    return needed - carried - left_to_the_machine()


@contextlib.contextmanager
def copy_of_the_application():
    with tempfile.TemporaryDirectory(prefix="copy-", dir=ROOT / "build") as folder:
        yield pathlib.Path(shutil.copytree(APPLICATION, pathlib.Path(folder, "VorxLauncher.app")))


def zisofs_decoded(data):
    """A file's content, unpacked from the form in which an .iso keeps it."""
    if not data.startswith(bytes.fromhex("37e45396c9dbd607")):
        return data
    import zlib
    header, size = 4 * data[12], int.from_bytes(data[8:12], "little")
    blocks = -(-size // (1 << data[13]))
    ends = [int.from_bytes(data[header + 4 * i:header + 4 * i + 4], "little") for i in range(blocks + 1)]
    return b"".join(zlib.decompress(data[start:end]) if end > start else bytes(1 << data[13])
                    for start, end in zip(ends, ends[1:]))[:size]


def contents(folder, decoded=lambda data: data):
    """The content of a folder, by path: a link's target, or a file's mode and content."""
    found = {}
    for path in folder.rglob("*"):
        name = str(path.relative_to(folder))
        if path.is_symlink():
            found[name] = str(path.readlink())
        elif path.is_file():
            found[name] = (path.stat().st_mode & 0o111, decoded(path.read_bytes()))
    return found


class LibrariesTest(unittest.TestCase):
    def test_every_library_is_carried_or_the_machines(self):
        self.assertEqual(wanting(APPLICATION), set())

    def test_a_library_that_is_not_carried_is_noticed(self):
        with copy_of_the_application() as copy:
            next((copy / "lib").glob("libicudata.so.*")).unlink()
            self.assertRegex(" ".join(wanting(copy)), r"^libicudata\.so\.\d+$")

    def test_nothing_of_the_machines_is_carried(self):
        carried = {file.name for file in (APPLICATION / "lib").iterdir()}
        self.assertEqual(carried & left_to_the_machine(), set())

    def test_a_copy_of_the_application_takes_its_own_libraries(self):
        with copy_of_the_application() as copy:
            for program in WITH_A_WINDOW:
                taken = dict(re.findall(r"(\S+) => (\S+)", output_of("ldd", copy / program)))
                for file in (APPLICATION / "lib").iterdir():
                    if file.name in taken:
                        with self.subTest(program=program, library=file.name):
                            self.assertEqual(pathlib.Path(taken[file.name]).resolve(),
                                             copy / "lib" / file.name)

    def test_what_has_a_window_takes_some_of_them(self):
        for program in WITH_A_WINDOW:
            with self.subTest(program=program):
                self.assertIn("VorxLauncher.app", output_of("ldd", APPLICATION / program))

    def test_the_listing_tool_takes_the_machines_alone(self):
        self.assertLessEqual(needed_by(APPLICATION / LISTING_TOOL), left_to_the_machine())
        self.assertNotIn("VorxLauncher.app", output_of("ldd", APPLICATION / LISTING_TOOL))

    def test_a_viewer_of_somebody_else_is_not_told_of_our_qt(self):
        with copy_of_the_application() as copy:
            output_of(ROOT / "packaging/linux/carry", "qmake6", copy, copy / "VorxLauncher",
                      copy / LISTING_TOOL)
            self.assertEqual([str(conf.relative_to(copy)) for conf in copy.rglob("qt.conf")], ["qt.conf"])

    def test_qt_finds_its_plugins(self):
        for program in WITH_A_WINDOW:
            conf = (APPLICATION / program).with_name("qt.conf").read_text()
            prefix = re.search("^Prefix = (.*)$", conf, re.MULTILINE).group(1)
            with self.subTest(program=program):
                self.assertTrue((APPLICATION / program).parent.joinpath(
                    prefix, "plugins/platforms/libqxcb.so").is_file())


class LicencesTest(unittest.TestCase):
    def test_the_terms_of_every_package_are_there(self):
        texts = [file for file in (APPLICATION / "licences").iterdir() if file.name != "SOURCES"]
        for text in texts:
            if text.is_file():
                for name in re.findall(r"/usr/share/common-licenses/([\w.+-]*\w)", text.read_text()):
                    self.assertTrue((APPLICATION / "licences/common" / name).is_file(), f"{text}: {name}")
        self.assertIn("libqt6core6", [text.name.removesuffix("t64") for text in texts])

    def test_the_sources_are_named_with_their_versions(self):
        lines = (APPLICATION / "licences/SOURCES").read_text().splitlines()
        self.assertIn("qt6-base", [line.split()[0] for line in lines])
        for line in lines:
            self.assertRegex(line, r"^[a-z0-9.+-]+ \d\S*$")


class ImageTest(unittest.TestCase):
    """Both forms hold the application as it is in the build folder, and its starter."""

    def make(self, name):
        folder = tempfile.TemporaryDirectory(prefix="image-", dir=ROOT / "build")
        self.addCleanup(folder.cleanup)
        image = pathlib.Path(folder.name, name)
        output_of(MAKE_IMAGE, APPLICATION, image)
        self.assertLessEqual(image.stat().st_size, MOST_BYTES)
        return image, image.with_name("volume")

    def check(self, volume, **options):
        found = contents(volume, **options)
        self.assertEqual(found.pop("Vorx Launcher"), "VorxLauncher.app/VorxLauncher")
        icon = re.search(rb"^IconFile=(.*)$", found.pop(".xdg-volume-info")[1], re.MULTILINE).group(1)
        self.assertIn(icon.decode(), found)
        self.assertEqual(found, {f"VorxLauncher.app/{name}": content
                                 for name, content in contents(APPLICATION).items()})

    def test_squashfs(self):
        image, volume = self.make("VorxLauncher.img")
        output_of("unsquashfs", "-no-xattrs", "-dest", volume, image)
        self.check(volume)

    def test_iso(self):
        image, volume = self.make("VorxLauncher.iso")
        output_of("xorriso", "-osirrox", "on:auto_chmod_on", "-indev", image, "-extract", "/", volume)
        output_of("chmod", "-R", "u+w", volume)
        self.check(volume, decoded=zisofs_decoded)

    def test_refuses_another_form(self):
        done = subprocess.run([MAKE_IMAGE, APPLICATION, "VorxLauncher.zip"], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, r"\.img or \.iso")


if __name__ == "__main__":
    unittest.main()
