"""A viewer that does not do what viewers do."""

import os
import signal

import doubles
from case import READY, RUNNING_READY, LauncherTest
from desktop.waiting import wait_until


class OddViewerTest(LauncherTest):
    def launch(self, **options):
        self.start(**options)
        self.enter_valid()
        self.wait_for_status(READY)
        self.press_launch()

    def launch_stubborn(self):
        """A viewer that SIGTERM does not end runs on return."""
        self.launch(environment={"STUBBORN": "1"})
        self.addCleanup(self.kill_viewers)
        viewer = self.wait_for_viewer()
        self.wait_for_status(RUNNING_READY)
        return viewer

    @staticmethod
    def kill_viewers():
        for viewer in doubles.running("vexlink"):
            os.kill(viewer, signal.SIGKILL)

    def test_one_that_does_not_end_gets_a_second_beside_it(self):
        first = self.launch_stubborn()
        self.press_launch()
        second = self.wait_for_viewer(first)
        self.assertEqual(doubles.running("vexlink"), [first, second])
        self.wait_for_status(RUNNING_READY)
        self.quit()
        self.record.wait_for(second, "SIGTERM")
        self.assertEqual(self.record.events(), [(first, "started"), (first, "SIGTERM"),
                                                (second, "started"), (second, "SIGTERM")])

    def test_the_launcher_quits_while_it_waits_for_one_to_end(self):
        viewer = self.launch_stubborn()
        self.press_launch()
        self.record.wait_for(viewer, "SIGTERM")
        self.quit()
        wait_until(lambda: self.record.events().count((viewer, "SIGTERM")) == 2,
                   "the viewer is asked again at quit")
        self.assertEqual(doubles.running("vexlink"), [viewer])

    def test_one_that_ends_at_once_is_forgotten(self):
        self.viewer.write_text("#!/bin/sh\necho $$ ended >> \"$RECORD\"\n")
        self.launch()
        self.record.wait_for_event("ended")
        wait_until(lambda: doubles.children_of(self.launcher.pid) == [], "the viewer is reaped")
        self.enter("ipAddress", "10.0.0.6")
        self.wait_for_status(READY)

        self.viewer.unlink()
        self.put_viewer_in_place()
        self.press_launch()
        self.wait_for_viewer()

    def test_one_whose_file_is_replaced_makes_way_for_the_new_one(self):
        self.launch()
        first = self.wait_for_viewer()
        self.wait_for_status(RUNNING_READY)
        self.viewer.unlink()
        self.put_viewer_in_place()
        self.press_launch()
        second = self.wait_for_viewer(first)
        self.assertEqual(doubles.running("vexlink"), [second])
        self.assertEqual(os.readlink(f"/proc/{second}/exe"), str(self.viewer))
