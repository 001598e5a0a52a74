"""Signals that ask the launcher to end: it quits as from its menu."""

import signal

from case import READY, LauncherTest


class SignalTest(LauncherTest):
    def end_by(self, number):
        self.launcher.send_signal(number)
        self.assertEqual(self.launcher.wait(timeout=60), 0)

    def test_the_viewer_is_asked_to_end(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(signal=number.name):
                self.start()
                self.enter_valid()
                self.wait_for_status(READY)
                self.press_launch()
                viewer = self.wait_for_viewer()
                self.end_by(number)
                self.record.wait_for(viewer, "SIGTERM")

    def test_an_alert_is_no_hindrance(self):
        self.start()
        self.enter("vorxLocation", "https://nohost.invalid")
        self.wait_for_status(READY)
        self.press_launch()
        self.wait_for_alert()
        self.end_by(signal.SIGTERM)

    def test_at_whatever_moment(self):
        for _ in range(10):
            self.start()
            self.window.type("https://server.example/")
            self.end_by(signal.SIGTERM)
