"""A screen reader is told what happens."""

from case import LauncherTest
from desktop.launcher import LOOKING_UP, NO_URL, READY, RUNNING_READY
from desktop.screen_reader import Announcements
from desktop.waiting import wait_until


class AnnouncementTest(LauncherTest):
    def test_the_status_line_is_read_when_it_changes_and_only_then(self):
        self.start_with_slow_resolver()
        with Announcements() as announcements:
            def wait_for(text):
                wait_until(lambda: announcements.heard()[-1:] == [text], f"'{text}' is read")

            self.enter_location("https://localhost")
            wait_for(READY)
            self.press_launch()
            wait_for(LOOKING_UP)
            self.answers.open()
            wait_for(RUNNING_READY)
            self.enter_location("server")
            wait_for(NO_URL)
            self.assertEqual(announcements.heard(), [READY, LOOKING_UP, RUNNING_READY, NO_URL])
