"""A virtual display with a light window manager."""

import os
import subprocess

from desktop.failure import Failure
from desktop.waiting import wait_until


class NoDisplay(Failure):
    """No virtual display can be had here; the text is the reason."""


class VirtualDisplay:
    """Xvfb on the first free display number, with openbox; both end with the `with` block."""

    def __init__(self, size="1024x768"):
        self._programs = []
        try:
            self.environment = {"DISPLAY": self._start_server(size)}
            self._start_window_manager()
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

    def _start(self, *command, **options):
        try:
            program = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL, start_new_session=True, **options)
        except FileNotFoundError as error:
            raise NoDisplay(f"{command[0]} is not installed") from error
        self._programs.append(program)
        return program

    def _start_server(self, size):
        answer, number = os.pipe()
        try:
            self._start("Xvfb", "-displayfd", str(number), "-screen", "0", f"{size}x24",
                        "-nolisten", "tcp", "-noreset", pass_fds=[number])
        finally:
            os.close(number)
        with os.fdopen(answer) as file:
            line = file.readline().strip()
        if not line:
            raise NoDisplay("Xvfb does not start")
        return f":{line}"

    def _start_window_manager(self):
        self._start("openbox", env={**os.environ, **self.environment})
        wait_until(self._is_managed, "openbox manages the display")

    def _is_managed(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], text=True,
                                env={**os.environ, **self.environment}, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL)
        return "window id" in answer.stdout
