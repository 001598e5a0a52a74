"""The session of script/run: it shows the launcher from a downloaded image and leaves nothing."""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

import doubles
from case import APPLICATION, BUILD, ROOT, WHITE
from desktop.attached_image import NotAllowed, attached
from desktop.launcher import PROGRAM
from desktop.picture import picture_in
from desktop.processes import adopt_orphans, end_descendants, none_left
from desktop.waiting import wait_until
from desktop.window import windows_of

MOUNT = "#!/bin/sh\necho 'mount: not permitted' >&2\nexit 32\n"
UDISKSCTL_THAT_MAY_NOT = "#!/bin/sh\necho 'Error: not authorized' >&2\nexit 1\n"
UDISKSCTL = """#!/bin/sh
# Does what the desktop's tool does, by root's means.
folder={folder}
case "$1" in
  loop-setup) echo "Mapped file $5 as $(losetup --find --show --read-only "$5")." ;;
  mount) mkdir "$folder" && /bin/mount -o ro "$4" "$folder" && echo "Mounted $4 at $folder" ;;
  unmount) umount "$folder" && rmdir "$folder" ;;
  loop-delete) losetup --detach "$4" ;;
esac
"""


class SessionTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        adopt_orphans()
        subprocess.run([ROOT / "packaging/linux/make-image", BUILD / APPLICATION,
                        BUILD / "VorxLauncher.img"], check=True, stdout=subprocess.DEVNULL)

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="e2e-", dir=BUILD)
        self.addCleanup(folder.cleanup)
        self.addCleanup(end_descendants)
        self.folder = pathlib.Path(folder.name)
        self.environment = {**os.environ, "HOME": str(self.folder), "LANGUAGE": "en"}

    def need_images(self):
        try:
            with attached(BUILD / "VorxLauncher.img"):
                pass
        except NotAllowed as reason:
            self.skipTest(f"images cannot be attached here: {reason}")

    def put_in_path(self, name, text):
        """Puts a script in front of the system's program of the same name."""
        tools = self.folder / "tools"
        tools.mkdir(exist_ok=True)
        (tools / name).write_text(text)
        (tools / name).chmod(0o755)
        self.environment["PATH"] = f"{tools}:{os.environ['PATH']}"

    def start(self, *arguments):
        self.output = self.folder / "output"
        with self.output.open("w") as output:
            self.session = subprocess.Popen(
                [sys.executable, str(ROOT / "script/lib/session.py"), *arguments],
                stdin=subprocess.DEVNULL, stdout=output, stderr=output, env=self.environment)

    def wait_for(self, text):
        def is_said():
            self.assertIsNone(self.session.poll(), self.output.read_text())
            return text in self.output.read_text()

        wait_until(is_said, f"the session says '{text}'")

    def close_window(self):
        launchers = wait_until(lambda: doubles.running(PROGRAM), "the launcher runs")
        wait_until(lambda: windows_of(launchers[0]), "the launcher shows its window")[0].close()

    def assert_ends(self, status):
        """The session ends with the status and leaves nothing behind."""
        self.assertEqual(self.session.wait(timeout=90), status, self.output.read_text())
        self.assertTrue(none_left())
        self.assertEqual(list(BUILD.glob("download-*")), [])
        self.assertNotIn("Vorx", pathlib.Path("/proc/mounts").read_text())
        backing = [file.read_text() for file in pathlib.Path("/sys/block").glob("loop*/loop/backing_file")]
        self.assertFalse([file for file in backing if str(BUILD) in file])

    def test_a_screenshot_shows_the_server(self):
        self.need_images()
        file = self.folder / "screenshot.png"
        self.start("--screenshot", str(file))
        self.assert_ends(0)
        self.assertIn(str(file), self.output.read_text())
        self.assertIn("Found http://127.0.0.1:", self.output.read_text())
        self.assertTrue(picture_in(file).has(WHITE))  # the colour of the fields

    def test_without_a_display_a_virtual_one_shows_it_until_a_signal_ends_it(self):
        self.need_images()
        del self.environment["DISPLAY"]
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                self.start()
                self.wait_for("Ctrl-C or closing the window ends it")
                self.assertIn("Screenshot: ", self.output.read_text())
                self.session.send_signal(number)
                self.assert_ends(128 + number)

    def test_closing_the_window_ends_it(self):
        self.start()
        self.close_window()
        self.assert_ends(0)

    def test_a_signal_half_way_leaves_nothing(self):
        self.put_in_path("curl", "#!/bin/sh\necho half-way >&2\nexec sleep 600\n")
        self.start()
        wait_until(lambda: doubles.running("sleep"), "the download is under way")
        self.session.send_signal(signal.SIGTERM)
        self.assert_ends(128 + signal.SIGTERM)

    def test_a_failure_half_way_is_one_line(self):
        self.put_in_path("curl", "#!/bin/sh\necho 'curl: (56) reset' >&2\nexit 56\n")
        self.start()
        self.assert_ends(1)
        self.assertEqual(self.output.read_text(),
                         "script/run: the download failed: curl: (56) reset\n")

    def test_where_root_may_not_mount_the_desktop_does(self):
        self.need_images()
        self.put_in_path("mount", MOUNT)
        self.put_in_path("udisksctl", UDISKSCTL.format(folder=self.folder / "Vorx"))
        self.start()
        self.wait_for(f"Mounted at {self.folder / 'Vorx'}")
        self.close_window()
        self.assert_ends(0)

    def test_where_nobody_may_mount_it_starts_from_the_build_folder(self):
        self.put_in_path("mount", MOUNT)
        self.put_in_path("udisksctl", UDISKSCTL_THAT_MAY_NOT)
        self.start()
        self.wait_for("The image cannot be attached here (mount: not permitted; Error: not "
                      "authorized): starting from the build folder\n")
        self.close_window()
        self.assert_ends(0)
