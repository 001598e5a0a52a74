"""What ends with the launcher."""

import os
import signal

import doubles
from case import LauncherTest
from desktop.waiting import wait_until


class QuitTest(LauncherTest):
    def test_the_viewer_and_the_first_companion_are_asked_to_end(self):
        self.start_with_companions()
        viewer = self.launch()
        self.quit()
        self.assert_quit_sequence(viewer)

    def test_without_a_launch_only_the_companion_is(self):
        other = self.start_double("vexlink")
        self.start_with_companions()
        self.quit()
        self.assert_quit_sequence()
        self.assertEqual(doubles.running("vexlink"), [other])

    def test_a_viewer_that_has_ended_is_reaped(self):
        self.start()
        viewer = self.launch()
        os.kill(viewer, signal.SIGTERM)
        wait_until(lambda: not os.path.exists(f"/proc/{viewer}"), "the launcher has reaped it")
        self.assertIsNone(self.process.poll())
