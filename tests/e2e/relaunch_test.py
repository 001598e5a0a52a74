"""A press while a viewer runs."""

import time

import doubles
from case import READY, RUNNING_READY, LauncherTest


class RelaunchTest(LauncherTest):
    def start_with_location(self):
        self.start()
        self.enter_valid()

    def test_the_viewer_of_this_launcher_ends_first(self):
        self.start_with_location()
        self.wait_for_status(READY)
        self.press_launch()
        first = self.wait_for_viewer()
        self.wait_for_status(RUNNING_READY)
        self.press_launch()
        second = self.wait_for_viewer(first)
        self.assertEqual(self.record.events(),
                         [(first, "started"), (first, "SIGTERM"), (second, "started")])
        self.assertEqual(doubles.running("vexlink"), [second])

    def test_a_viewer_of_somebody_else_is_waited_for_and_left_alone(self):
        other = self.start_double("vexlink")
        self.start_with_location()
        self.wait_for_status(RUNNING_READY)
        pressed = time.monotonic()
        self.press_launch()
        own = self.wait_for_viewer(other)
        self.assertGreaterEqual(time.monotonic() - pressed, 5)
        self.wait_for_status(RUNNING_READY)

        self.quit()
        self.record.wait_for(own, "SIGTERM")
        self.assertEqual(self.record.events(),
                         [(other, "started"), (own, "started"), (own, "SIGTERM")])
