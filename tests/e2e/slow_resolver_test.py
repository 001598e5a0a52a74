"""A resolver that takes as long as it likes."""

import doubles
from case import GREEN, LOOKING_UP, READY, RED, RUNNING_READY, LauncherTest


class SlowResolverTest(LauncherTest):
    def look_up(self, host):
        """Presses the button; the lookup is under way on return."""
        self.answers = doubles.Gate(self.folder / "answers")
        self.start(environment={"LD_PRELOAD": str(doubles.SLOW_RESOLVER),
                                "ANSWERS": str(self.answers.file)})
        self.enter("vorxLocation", f"https://{host}")
        self.wait_for_status(READY)
        self.press_launch()
        self.wait_for_status(LOOKING_UP)
        self.record.wait_for(self.launcher.pid, "lookup")

    def test_what_is_typed_meanwhile_is_shown_and_judged(self):
        self.look_up("127.0.0.1")
        self.enter("ipAddress", "10.0.0")
        self.wait_for_ip_colour(RED)
        self.window.type(".5")
        self.wait_for_ip_colour(GREEN)
        self.wait_for_text("ipAddress", "10.0.0.5")
        self.assertEqual(doubles.running("vexlink"), [])

        self.answers.open()
        self.assertEqual(doubles.arguments_of(self.wait_for_viewer())[:4],
                         ["-l", "127.0.0.1", "-i", "127.0.0.1"])

    def test_the_location_is_locked_meanwhile(self):
        self.look_up("127.0.0.1")
        self.enter("vorxLocation", "typed")
        self.answers.open()
        self.wait_for_status(RUNNING_READY)
        self.wait_for_text("vorxLocation", "https://127.0.0.1")

    def test_a_second_launch_overtakes_it(self):
        self.look_up("127.0.0.1")
        self.enter("ipAddress", "10.0.0.5")
        self.wait_for_status(READY)
        self.press_launch()
        first = self.wait_for_viewer()
        self.assertEqual(doubles.arguments_of(first)[3], "10.0.0.5")

        self.answers.open()
        second = self.wait_for_viewer(first)
        self.assertEqual(doubles.arguments_of(second)[3], "127.0.0.1")
        self.assertEqual(self.record.events()[1:],
                         [(first, "started"), (first, "SIGTERM"), (second, "started")])

    def test_the_launcher_quits_without_the_answer(self):
        self.look_up("127.0.0.1")
        self.quit()
        self.assertEqual(self.record.events(), [(self.launcher.pid, "lookup")])
