"""The application starts from its mounted image in bare systems, which tests/portable/run makes."""

import contextlib
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import unittest

from desktop.waiting import wait_until

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / "build/portable"
IMAGE = FOLDER / "VorxLauncher.img"
VOLUME = "/mnt"
PERSON = 1000
ORIGIN = "https://127.0.0.1/vorx/VorxLauncher.img"  # the lookup of this host needs no network


class System:
    """A bare system, with a person's home and an X server's socket. What is written into it goes into
    scratch folders, which are removed with it."""

    def __init__(self, suite):
        self._stack = contextlib.ExitStack()
        self._scratch = pathlib.Path(self._stack.enter_context(
            tempfile.TemporaryDirectory(prefix="system-", dir=FOLDER)))
        self.root = FOLDER / suite
        self.home = self._bound("root")
        self._mount("--bind", "/tmp", self.root / "tmp")
        self._mount("--rbind", "/dev", self.root / "dev")
        self._mount("--rbind", "/sys", self.root / "sys")
        self._mount("-t", "proc", "proc", self.root / "proc")

    def _bound(self, name):
        folder = self._scratch / name
        folder.mkdir()
        os.chown(folder, PERSON, PERSON)
        self._mount("--bind", folder, self.root / name)
        return folder

    def _mount(self, *arguments):
        subprocess.run(["mount", *map(str, arguments)], check=True)
        self._stack.callback(subprocess.run, ["umount", "--recursive", str(arguments[-1])], check=True)

    def download(self, image, origin):
        """Puts an image into the home and records its origin."""
        file = self.root / "root" / image.name
        subprocess.run(["cp", str(image), str(file)], check=True)
        os.setxattr(file, "user.xdg.origin.url", origin.encode())
        return file

    def mount_image(self, file):
        self._mount("-o", "ro,loop", file, self.root / VOLUME[1:])

    def start(self, *command):
        return subprocess.Popen(
            ["chroot", f"--userspec={PERSON}:{PERSON}", str(self.root), *command],
            env={"HOME": "/root", "PATH": "/usr/sbin:/usr/bin", "DISPLAY": os.environ["DISPLAY"]},
            stdin=subprocess.DEVNULL, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def close(self):
        self._stack.close()


def process_named(name):
    """The process of this name; None if there is none."""
    for file in pathlib.Path("/proc").glob("[0-9]*/comm"):
        with contextlib.suppress(OSError):
            if file.read_text().strip() == name:
                return file.parent


def arguments_of(process):
    return (process / "cmdline").read_bytes().decode().split("\0")[:-1]


def libraries_of(process):
    """The folders of the libraries that a process has loaded, by library name."""
    places = re.findall(r"(/\S+\.so\S*)$", (process / "maps").read_text(), re.MULTILINE)
    return {pathlib.Path(place).name: str(pathlib.Path(place).parent) for place in places}


def has_window(name):
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--class", f"^{name}$"],
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


def press_until_launched():
    """Presses Return until the viewer runs: before the location is found it does nothing, and later it
    would close the viewer."""
    def launched():
        if process_named("vexlink") is None:
            subprocess.run(["xdotool", "key", "Return"], check=True)
        with contextlib.suppress(subprocess.TimeoutExpired):
            return subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--class", "^vexlink$"],
                                  stdout=subprocess.PIPE, timeout=3).returncode == 0
    wait_until(launched, "the viewer's window is shown")


class SystemsTest(unittest.TestCase):
    def check(self, suite):
        system = System(suite)
        self.addCleanup(system.close)
        self.assertEqual(list(system.root.glob("usr/lib/*/libQt*")), [])
        system.mount_image(system.download(IMAGE, ORIGIN))

        launcher = system.start(f"{VOLUME}/VorxLauncher.app/VorxLauncher")
        self.addCleanup(launcher.kill)
        wait_until(lambda: has_window("VorxLauncher") or launcher.poll() is not None, "a window is shown")
        self.assertIsNone(launcher.poll(), launcher.poll() is not None and launcher.stdout.read())
        press_until_launched()
        subprocess.run(["import", "-window", "root", str(FOLDER / f"{suite}.png")], check=True)

        viewer = process_named("vexlink")
        self.assertEqual(arguments_of(viewer), [f"{VOLUME}/VorxLauncher.app/Resources/bin/vexlink", "-l",
                                                "127.0.0.1", "-i", "127.0.0.1",
                                                "-r", f"{VOLUME}/VorxLauncher.app/Resources"])
        for process in (pathlib.Path("/proc", str(launcher.pid)), viewer):
            libraries = libraries_of(process)
            self.assertIn("libQt6Widgets.so.6", libraries)
            for name, folder in libraries.items():
                if name.startswith("libQt6"):
                    self.assertTrue(folder.endswith("/VorxLauncher.app/lib"), f"{name} in {folder}")

        launcher.send_signal(signal.SIGTERM)
        self.assertEqual(launcher.communicate(timeout=60)[0].splitlines()[:-1], [])
        wait_until(lambda: not viewer.exists(), "the viewer has ended")

    def test_bookworm(self):
        self.check("bookworm")

    def test_trixie(self):
        self.check("trixie")
