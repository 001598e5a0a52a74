"""The home folder cannot store anything."""

import contextlib
import subprocess

from case import LauncherTest


class HomeTest(LauncherTest):
    def mounted(self, options):
        """An empty file system of its own."""
        folder = self.folder / "home"
        folder.mkdir()
        done = subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", folder], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            self.skipTest(f"nothing can be mounted here: {done.stdout.strip()}")
        self.addCleanup(subprocess.run, ["umount", folder], check=True)
        return folder

    def assert_works(self, home):
        """The launcher works, with the folder for temporary files in the same place."""
        self.start(environment={"HOME": str(home), "TMPDIR": str(home)})
        self.launch()
        self.quit()

    def test_there_is_none(self):
        self.assert_works(self.folder / "missing")

    def test_it_is_a_file(self):
        file = self.folder / "file"
        file.touch()
        self.assert_works(file)

    def test_it_cannot_be_written_to(self):
        self.assert_works(self.mounted("ro"))

    def test_the_disk_is_full(self):
        home = self.mounted("size=4k")
        with contextlib.suppress(OSError), (home / "filler").open("wb", buffering=0) as filler:
            while True:
                filler.write(bytes(4096))
        self.assert_works(home)
