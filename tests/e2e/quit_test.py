"""What ends with the launcher."""

import os
import signal

import doubles
from case import LauncherTest
from desktop.waiting import wait_until


class QuitTest(LauncherTest):
    def test_the_viewer_and_the_first_companion_are_asked_to_end(self):
        first, second = sorted([self.start_double("vexwatch"), self.start_double("vexwatch")])
        self.start()
        viewer = self.launch()

        self.quit()
        self.record.wait_for(viewer, "SIGTERM")
        self.record.wait_for(first, "SIGTERM")
        self.assertEqual(doubles.running("vexwatch"), [second])
        self.assertNotIn((second, "SIGTERM"), self.record.events())

    def test_a_viewer_that_has_ended_is_reaped(self):
        self.start()
        viewer = self.launch()
        os.kill(viewer, signal.SIGTERM)
        wait_until(lambda: not os.path.exists(f"/proc/{viewer}"), "the launcher has reaped it")
        self.assertIsNone(self.process.poll())
