"""The end of the desktop's session."""

import os
import subprocess

import doubles
from case import LauncherTest


class SessionEndTest(LauncherTest):
    def start_session_manager(self):
        """Returns its address."""
        self.manager = subprocess.Popen(
            [doubles.BUILT / "session-manager"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            env={**os.environ, "RECORD": str(self.record.file)}, text=True)
        self.addCleanup(self.manager.communicate)
        self.addCleanup(self.manager.kill)
        return self.manager.stdout.readline().strip()

    def test_the_viewer_and_the_companion_are_asked_to_end(self):
        address = self.start_session_manager()
        self.start_with_companions(SESSION_MANAGER=address)
        self.record.wait_for(self.manager.pid, "member")
        viewer = self.launch()

        self.manager.terminate()
        self.assert_ends()
        self.assert_quit_sequence(viewer)
        self.assertEqual(self.manager.wait(timeout=60), 0)
