"""A keystroke and a process search, among many processes."""

import contextlib
import os
import shutil
import subprocess
import time

import small
from figures import FLOOR, OURS, Figure, Unavailable, at_most
from project import BUILD
from windows import APPLICATION, BARE_WINDOW, PROGRAM, session

CROWD = BUILD / "bench/stage/crowd"
ROUNDS = 3
KEYS = ["a", "BackSpace"] * 4
COMMANDS = {"pgrep -x": ["pgrep", "-x", "vexlink"], "pidof": ["pidof", "vexlink"]}


@contextlib.contextmanager
def crowd(count):
    """So many processes, in all, that do nothing."""
    others = sum(name.isdigit() for name in os.listdir("/proc"))
    sleepers = subprocess.Popen([CROWD, str(max(count - others, 0))], stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, text=True)
    try:
        answer = sleepers.stdout.readline().strip()
        if answer != "ready":
            raise Unavailable(answer or "the processes cannot be had")
        yield
    finally:
        sleepers.kill()
        sleepers.wait()
        sleepers.stdout.close()


def _nanoseconds_of(command):
    start = time.monotonic_ns()
    subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    return time.monotonic_ns() - start


def _searches():
    """Nanoseconds of a search by ours, by the floor, and by those peers that are here."""
    found = small.measured("^search/")
    for name, command in COMMANDS.items():
        if shutil.which(command[0]) is not None:
            times = sorted(_nanoseconds_of(command) for _ in range(3))
            found[f"search/{name}"] = times[1]
    return found


def _loop_after_pause():
    """Milliseconds of the floor's search where, as at a keystroke, none went right before."""
    return next(iter(small.measured("^keystroke/", "real_time").values())) / 1e6


def _keystrokes(home):
    """Milliseconds from a key to what it changes, in the launcher's field and in a bare one."""
    with session(APPLICATION / PROGRAM, home=home) as launcher:
        launcher.type_into("vorxLocation", "https://server.example/path")
        ours = [1e3 * launcher.key(key) for key in KEYS]
    with session(BARE_WINDOW, home=home) as bare:
        return ours, [1e3 * bare.key(key) for key in KEYS]


def among(count, home):
    keys, bare, floor, searches = [], [], [], []
    with crowd(count):
        for _ in range(ROUNDS):
            ours, its = _keystrokes(home)
            keys += ours
            bare += its
            floor += [_loop_after_pause()] * len(KEYS)
            searches += [_searches(), _searches()]
    return [Figure(f"keystroke to painted, {count:,} processes", "ms",
                   {OURS: keys, FLOOR: floor, "a bare window's field": bare}, {}, [at_most(1.1)]),
            small.searches(searches, count)]
