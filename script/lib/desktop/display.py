"""A virtual desktop: a display with a light window manager and a session bus."""

import os
import subprocess
import tempfile

from desktop.waiting import Failure, wait_until


class NoDisplay(Failure):
    """This machine cannot provide a virtual display; the text is the reason."""


class VirtualDisplay:
    """Xvfb on the first free display number, with openbox and a bus; all end with the `with` block."""

    def __init__(self, size="1024x768"):
        self._programs = []
        self._folder = tempfile.TemporaryDirectory(prefix="session-")
        self.environment = {"XDG_RUNTIME_DIR": self._folder.name}
        try:
            self.environment["DISPLAY"] = ":" + self._answer(
                "Xvfb", "-displayfd", "{}", "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                "-noreset")
            self._start("openbox")
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._answer(
                "dbus-daemon", "--session", "--nofork", "--print-address={}")
            wait_until(self._is_managed, "openbox manages the display")
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        while self._programs:
            program = self._programs.pop()
            program.terminate()
            program.wait()
        self._folder.cleanup()

    def _start(self, *command, **options):
        try:
            program = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL, start_new_session=True,
                                       env={**os.environ, **self.environment}, **options)
        except FileNotFoundError as error:
            raise NoDisplay(f"{command[0]} is not installed") from error
        self._programs.append(program)

    def _answer(self, *command):
        """Starts a program. Returns the line that it writes to the descriptor that replaces {}."""
        answer, number = os.pipe()
        with os.fdopen(answer) as file:
            try:
                self._start(*[word.format(number) for word in command], pass_fds=[number])
            finally:
                os.close(number)
            line = file.readline().strip()
        if not line:
            raise NoDisplay(f"{command[0]} does not start")
        return line

    def _is_managed(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], text=True,
                                env={**os.environ, **self.environment}, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL)
        return "window id" in answer.stdout
