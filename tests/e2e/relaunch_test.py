"""A press while a viewer runs."""

import time

import doubles
from case import LauncherTest
from desktop.launcher import RUNNING_READY


class RelaunchTest(LauncherTest):
    def test_the_viewer_of_this_launcher_ends_first(self):
        self.start()
        first = self.launch()
        self.launcher.wait_for_status(RUNNING_READY)
        self.press_launch()
        second = self.wait_for_viewer(first)
        self.assertEqual(self.record.events(),
                         [(first, "started"), (first, "SIGTERM"), (second, "started")])
        self.assertEqual(doubles.running("vexlink"), [second])

    def test_a_viewer_of_somebody_else_is_waited_for_and_left_alone(self):
        other = self.start_double("vexlink")
        self.start()
        self.enter_valid()
        self.launcher.wait_for_status(RUNNING_READY)
        pressed = time.monotonic()
        self.press_launch()
        own = self.wait_for_viewer(other)
        self.assertGreaterEqual(time.monotonic() - pressed, 5)
        self.launcher.wait_for_status(RUNNING_READY)

        self.quit()
        self.record.wait_for(own, "SIGTERM")
        self.assertEqual(self.record.events(),
                         [(other, "started"), (own, "started"), (own, "SIGTERM")])

    def test_of_two_launchers_each_stops_its_own_viewer(self):
        self.start()
        first_process, first = self.process, self.launcher
        first_viewer = self.launch()
        self.start()
        second_viewer = self.launch()
        self.assertEqual(doubles.running("vexlink"), sorted([first_viewer, second_viewer]))

        self.quit()
        self.record.wait_for(second_viewer, "SIGTERM")
        self.assertIsNone(first_process.poll())
        self.assertEqual(doubles.running("vexlink"), [first_viewer])
        self.launcher, self.process = first, first_process
        self.quit()
        self.record.wait_for(first_viewer, "SIGTERM")
