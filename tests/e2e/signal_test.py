"""Signals that ask the launcher to end: it quits as from its window."""

import signal

from case import LauncherTest
from desktop.window import type_text

SIGNALS = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)


class SignalTest(LauncherTest):
    def end_by(self, number):
        self.process.send_signal(number)
        self.assert_ends()

    def test_the_viewer_and_the_companion_are_asked_to_end_once(self):
        for number in SIGNALS:
            with self.subTest(number.name):
                companion = self.start_double("vexwatch")
                self.start()
                viewer = self.launch()
                self.end_by(number)
                for asked in (viewer, companion):
                    self.record.wait_for(asked, "SIGTERM")
                    self.assertEqual(self.record.events().count((asked, "SIGTERM")), 1)

    def test_an_alert_is_no_hindrance(self):
        self.start()
        self.enter_location("https://nohost.invalid")
        self.press_launch()
        self.launcher.wait_for_alert()
        self.end_by(signal.SIGTERM)

    def test_at_whatever_moment(self):
        for _ in range(10):
            self.start()
            type_text("https://server.example/")
            self.end_by(signal.SIGTERM)
