"""Signals that ask the launcher to end: it quits as from its window."""

import signal

from case import LauncherTest
from desktop.window import type_text


class SignalTest(LauncherTest):
    def end_by(self, number):
        self.process.send_signal(number)
        self.assert_ends()

    def assert_quits_at(self, number):
        self.start_with_companions()
        viewer = self.launch()
        self.end_by(number)
        self.assert_quit_sequence(viewer)

    def test_that_ends_programs(self):
        self.assert_quits_at(signal.SIGTERM)

    def test_that_a_terminal_sends_at_ctrl_c(self):
        self.assert_quits_at(signal.SIGINT)

    def test_that_a_terminal_sends_when_it_goes(self):
        self.assert_quits_at(signal.SIGHUP)

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
