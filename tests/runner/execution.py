"""Runs a suite's program: with a time limit, apart from the machine, on a display of its own."""

import contextlib
import os
import signal
import subprocess

from isolation import isolated
from project import ROOT
from report import Unable

LIMIT_SECONDS = 900


def execute(command, *, apart=False, environment=None):
    """Runs a program and gives its exit status and what it printed. A program that hangs is ended."""
    process = subprocess.Popen(isolated(command) if apart else command, cwd=ROOT, text=True,
                               errors="replace", env={**os.environ, **(environment or {})},
                               start_new_session=True, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    try:
        output, _ = process.communicate(timeout=LIMIT_SECONDS)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output, _ = process.communicate()
        return -signal.SIGKILL, f"{output}\nended after {LIMIT_SECONDS} seconds without an end"


@contextlib.contextmanager
def own_display():
    """A virtual display with a window manager; gives the environment that leads to it."""
    from stage.display import NoDisplay, VirtualDisplay
    try:
        display = VirtualDisplay()
    except NoDisplay as reason:
        raise Unable(str(reason)) from reason
    with display:
        yield display.environment
