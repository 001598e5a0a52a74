"""The person sees an alert, whatever window is in front by then."""

import subprocess

from case import LauncherTest
from desktop.waiting import wait_until
from desktop.window import all_windows, windows_of

OTHER = "another program"


def is_in(window, state):
    return f"_NET_WM_STATE_{state}" in window.property("_NET_WM_STATE")


def switch_to_desktop(number):
    subprocess.run(["xdotool", "set_desktop", str(number)], check=True)


class AttentionTest(LauncherTest):
    def look_up(self):
        """Starts a lookup that fails as soon as it is answered. Returns once it is under way."""
        self.start_with_slow_resolver()
        self.enter_location("https://nohost.invalid")
        self.press_launch()
        self.wait_for_lookup()

    def other_window(self):
        """Brings the window of another program to the front and returns it."""
        program = subprocess.Popen(["xev", "-event", "structure", "-name", OTHER],
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        self.addCleanup(program.wait)
        self.addCleanup(program.terminate)

        def shown():
            return [window for window in all_windows() if OTHER in window.property("WM_NAME")]

        other = wait_until(shown, "the other program shows its window")[0]
        other.activate()
        wait_until(lambda: not self.launcher.window.active, "the other program is in front")
        return other

    def alert(self):
        """Lets the lookup fail and returns the alert's window."""
        self.answers.open()
        return wait_until(lambda: windows_of(self.process.pid)[1:], "an alert is shown")[0]

    def test_above_another_program_that_is_in_front(self):
        self.look_up()
        other = self.other_window()
        launcher, alert = self.launcher.on_display, self.alert()

        def is_above():
            order = all_windows("_NET_CLIENT_LIST_STACKING")
            return order.index(alert) > max(order.index(launcher), order.index(other))

        wait_until(is_above, "the alert is above all")

    def test_after_the_launcher_was_made_an_icon(self):
        self.look_up()
        launcher = self.launcher.on_display
        launcher.minimise()
        wait_until(lambda: is_in(launcher, "HIDDEN"), "the launcher is an icon")
        alert = self.alert()
        wait_until(lambda: not is_in(launcher, "HIDDEN") and not is_in(alert, "HIDDEN"),
                   "the launcher comes back with the alert")

    def test_from_another_desktop(self):
        self.look_up()
        switch_to_desktop(1)
        self.addCleanup(switch_to_desktop, 0)
        wait_until(lambda: not self.launcher.window.active, "the launcher is left")
        self.alert()
        wait_until(lambda: is_in(self.launcher.on_display, "DEMANDS_ATTENTION"),
                   "the task bar calls for attention")
