"""Letters for which there is no key."""

import os
import subprocess

from case import LauncherTest
from desktop.waiting import wait_until
from desktop.window import press


class InputMethodTest(LauncherTest):
    def wait_for_location(self, text):
        self.launcher.wait_until(lambda: self.launcher.location.text == text,
                                 f"the location is '{text}'")

    def set_keyboard(self):
        self.addCleanup(subprocess.run, ["setxkbmap", "-layout", "us", "-variant", "", "-option", ""],
                        check=True)
        subprocess.run(["setxkbmap", "us", "intl", "-option", "compose:menu"], check=True)

    def start_input_method(self):
        environment = {**os.environ, "HOME": str(self.folder)}

        def ibus(*words):
            return subprocess.run(["ibus", *words], env=environment, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL).returncode == 0

        daemon = subprocess.Popen(["ibus-daemon", "--panel=disable", "--emoji-extension=disable"],
                                  env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(daemon.wait)
        self.addCleanup(daemon.terminate)
        wait_until(lambda: ibus("engine", "xkb:us:intl:eng"), "the input method is there")

    def test_composed_by_the_keyboard(self):
        self.set_keyboard()
        self.start()
        press("Multi_key", "quotedbl", "u", "dead_acute", "e")
        self.wait_for_location("üé")

    def test_composed_by_an_input_method(self):
        self.set_keyboard()
        self.start_input_method()
        self.start(environment={"QT_IM_MODULE": "ibus"})

        # The input method starts a while after the window is shown. Until then it gets no keys.
        def composed():
            press("ctrl+a", "BackSpace", "dead_acute", "e")
            wait_until(lambda: self.launcher.location.text, "the keys have arrived")
            return self.launcher.location.text == "é"

        wait_until(composed, "the input method composes a letter")
