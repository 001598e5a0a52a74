"""The processes that this one has started, including those whose parent has ended."""

import ctypes
import os
import pathlib
import signal

from desktop.waiting import Failure, wait_until

_SET_CHILD_SUBREAPER = 36


def adopt_orphans():
    """Makes this process adopt its descendants from now on: one whose parent ends becomes its child."""
    ctypes.CDLL(None).prctl(_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def _parents():
    """Every process's parent."""
    parents = {}
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            fields = stat.read_text(errors="replace").rsplit(")", 1)[1].split()
        except (FileNotFoundError, ProcessLookupError):
            continue
        parents[int(stat.parent.name)] = int(fields[1])
    return parents


def descendants():
    """The processes below this one, zombies included."""
    parents = _parents()
    found = [os.getpid()]
    for ancestor in found:
        found += [process for process, parent in parents.items() if parent == ancestor]
    return found[1:]


def _signal_all(processes, number):
    for process in processes:
        try:
            os.kill(process, number)
        except ProcessLookupError:
            pass


def none_left():
    """Whether every process below this one has ended and is reaped."""
    try:
        while os.waitpid(-1, os.WNOHANG) != (0, 0):
            pass
    except ChildProcessError:
        pass
    return not descendants()


def end_descendants():
    """Ends every process below this one: asks first, then kills."""
    _signal_all(descendants(), signal.SIGTERM)
    try:
        wait_until(none_left, "the descendants have ended", limit=5)
    except Failure:
        _signal_all(descendants(), signal.SIGKILL)
        wait_until(none_left, "the descendants have ended")
