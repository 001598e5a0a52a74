"""The window among other windows."""

from case import LauncherTest
from stage.waiting import wait_until


class WindowTest(LauncherTest):
    def test_it_stays_above_ordinary_windows(self):
        self.start()
        wait_until(lambda: "_NET_WM_STATE_ABOVE" in self.window.states(), "the window is kept above")
