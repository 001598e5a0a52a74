"""Runs a suite's program within a time limit."""

import contextlib
import os
import pathlib
import signal
import subprocess
import tempfile

from apart import WITHOUT_DISPLAY, apart
from project import BUILD, ROOT
from report import Unable

LIMIT_SECONDS = 900


@contextlib.contextmanager
def scratch_folder():
    """An empty folder for one run of a suite."""
    with tempfile.TemporaryDirectory(prefix="suite-", dir=BUILD) as folder:
        yield pathlib.Path(folder)


def _communicate(process):
    try:
        return process.communicate(timeout=LIMIT_SECONDS)[0]
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        return f"{process.communicate()[0]}\nended after {LIMIT_SECONDS} seconds"


def execute(command, *, environment=None):
    """Runs a program and gives its exit status and what it printed. One that hangs is ended."""
    process = subprocess.Popen(command, cwd=ROOT, env={**os.environ, **(environment or {})},
                               text=True, errors="replace", start_new_session=True,
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT)
    output = _communicate(process)
    return process.returncode, output


def execute_apart(command, *, folder, display, environment=None):
    """The same, apart from the machine. Raises `Unable` where there can be no display."""
    place_of_tmp = folder / "tmp"
    place_of_tmp.mkdir()
    status, output = execute(apart(command, folder=place_of_tmp, display=display),
                             environment=environment)
    if status == WITHOUT_DISPLAY:
        raise Unable(output.strip())
    return status, output
