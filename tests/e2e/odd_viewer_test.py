"""The viewer behaves in an unusual way."""

import os
import signal

import doubles
from case import LauncherTest
from desktop.launcher import READY, RUNNING_READY
from desktop.waiting import wait_until


class OddViewerTest(LauncherTest):
    def launch_stubborn(self):
        """Starts a viewer that SIGTERM does not end. Returns once it runs."""
        self.start(environment={"STUBBORN": "1"})
        self.addCleanup(self.kill_viewers)
        viewer = self.launch()
        self.launcher.wait_for_status(RUNNING_READY)
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
        self.launcher.wait_for_status(RUNNING_READY)
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
        self.start()
        self.enter_valid()
        self.press_launch()
        self.record.wait_for_event("ended")
        wait_until(lambda: doubles.children_of(self.process.pid) == [], "the viewer is reaped")
        self.enter_address("10.0.0.6")
        self.launcher.wait_for_status(READY)

        self.viewer.unlink()
        self.put_viewer_in_place()
        self.press_launch()
        self.wait_for_viewer()

    def test_one_whose_file_is_replaced_makes_way_for_the_new_one(self):
        self.start()
        first = self.launch()
        self.launcher.wait_for_status(RUNNING_READY)
        self.viewer.unlink()
        self.put_viewer_in_place()
        self.press_launch()
        second = self.wait_for_viewer(first)
        self.assertEqual(doubles.running("vexlink"), [second])
        self.assertEqual(os.readlink(f"/proc/{second}/exe"), str(self.viewer))
