"""Two hundred starts and quits, one after another, leave nothing behind. This takes minutes, so it is a
suite of its own."""

import os
import pathlib
import subprocess

from case import ROOT, LauncherTest
from desktop.launcher import PROGRAM
from desktop.processes import descendants, none_left
from desktop.waiting import wait_until

STARTS = 200


def files_below(folder):
    """How many files and folders there are. Leaves out the project's, which others may be building."""
    count = 0
    for place, folders, files in os.walk(folder):
        if pathlib.Path(place) == ROOT:
            folders.clear()
        else:
            count += len(folders) + len(files)
    return count


def lines_of(*command):
    printed = subprocess.run(command, text=True, check=True, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE).stdout
    return len(printed.splitlines())


class StartsTest(LauncherTest):
    def possessions(self):
        return {"temporary files": files_below("/tmp"),
                "files in the home folder": files_below(self.home),
                "shared memory": lines_of("ipcs", "-m"),
                "processes": len(descendants()),
                "attached images": lines_of("losetup", "--associated", self.image),
                "mounts": len(pathlib.Path("/proc/self/mountinfo").read_text().splitlines()),
                "windows": lines_of("xwininfo", "-root", "-tree")}

    def start_and_quit(self, program, *, during_search):
        self.start(program, environment={"HOME": str(self.home)})
        if not during_search:
            self.launcher.wait_for_location()
        self.quit()

    def test_nothing_stays(self):
        application, _ = self.mounted_application()
        self.image = next(self.folder.glob("downloads/*"))
        self.home = self.folder / "home"
        self.home.mkdir()
        self.start_and_quit(application / PROGRAM, during_search=False)
        before = self.possessions()
        for number in range(STARTS):
            self.start_and_quit(application / PROGRAM, during_search=number % 2 == 0)
        wait_until(none_left, "all processes have ended")
        self.assertEqual(self.possessions(), before)
