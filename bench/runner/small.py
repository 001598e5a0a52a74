"""The small benchmarks, which use Google Benchmark, and those that depend on the number of processes."""

import contextlib
import json
import os
import shutil
import statistics
import subprocess
import time

from table import FLOOR, OURS, Figure, Unavailable, ahead_of, at_most, under
from windows import APPLICATION, BARE_WINDOW, BUILD, PROGRAM, session

ROUNDS = 5
KEYS = ["a", "BackSpace"] * 3
SCALE = {"ns": 1, "µs": 1e3, "ms": 1e6}


def measured(group, unit, clock="cpu_time"):
    """The values of each round, by contestant and case, of the benchmarks named
    GROUP/CONTESTANT/CASE."""
    done = subprocess.run([BUILD / "bench/bench-small", f"--benchmark_filter=^{group}/",
                           "--benchmark_min_time=0.03", f"--benchmark_repetitions={ROUNDS}",
                           "--benchmark_enable_random_interleaving=true", "--benchmark_format=json"],
                          stdin=subprocess.DEVNULL, check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL)
    values = {}
    for run in json.loads(done.stdout)["benchmarks"]:
        if run["run_type"] == "iteration":
            _, contestant, case, *_ = f"{run['run_name']}/".split("/")
            values.setdefault(contestant, {}).setdefault(case, []).append(run[clock] / SCALE[unit])
    return values


def of_case(values, case=""):
    return {contestant: cases[case] for contestant, cases in values.items()}


def slowest(values):
    """Each contestant's slowest case, round by round."""
    return {contestant: [max(round) for round in zip(*cases.values())]
            for contestant, cases in values.items()}


def links():
    hostile, longer = measured("hostile", "ms"), measured("ten times longer", "ms")
    growth = {OURS: {case: [long / short for long, short in zip(values, hostile[OURS][case])]
                     for case, values in longer[OURS].items()}}
    peer = ahead_of("cmark-gfm")
    return [Figure("link check of a typed location", "ns", of_case(measured("typed", "ns")),
                   [under(300, "ns"), peer]),
            Figure("links in 1 MB of text", "ms", of_case(measured("megabyte", "ms")), [peer]),
            Figure("links in the worst hostile text of 10 KB", "ms", slowest(hostile), [peer]),
            Figure("growth of the time when such a text is ten times as long", "×", slowest(growth),
                   [under(15, "×")])]


def property_lists():
    values = measured("list", "µs")
    return [Figure(f"property list, images: {images}", "µs", of_case(values, images), [ahead_of("libplist")])
            for images in sorted(values[OURS], key=int)]


@contextlib.contextmanager
def crowd(count):
    """Fills the machine up to `count` processes that do nothing."""
    others = sum(name.isdigit() for name in os.listdir("/proc"))
    sleepers = subprocess.Popen([BUILD / "bench/crowd", str(max(count - others, 0))],
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
    try:
        answer = sleepers.stdout.readline().strip()
        if answer != "ready":
            raise Unavailable(answer or "the processes cannot be had")
        yield
    finally:
        sleepers.kill()
        sleepers.wait()
        sleepers.stdout.close()


def run_of(*command):
    begun = time.monotonic()
    subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    return 1e3 * (time.monotonic() - begun)


def keystrokes(program, home):
    """Milliseconds from a key to the painted change, while the field holds a whole location."""
    with session(program, home=home) as (running, _):
        running.type("https://server.example/path")
        return [1e3 * running.key(key) for key in KEYS]


def among(count, home):
    """Times a keystroke and a process search among the given number of processes."""
    with crowd(count):
        ours, bare = ([value for _ in range(3) for value in keystrokes(program, home)]
                      for program in (APPLICATION / PROGRAM, BARE_WINDOW))
        loop = of_case(measured("keystroke", "ms", "real_time"), "iterations:4")[FLOOR]
        search = of_case(measured("search", "ms"))
        for name, command in {"pgrep": ["pgrep", "-x", "vexlink"], "pidof": ["pidof", "vexlink"]}.items():
            if shutil.which(name):
                search[name] = [run_of(*command) for _ in range(3)]
    floor = [value + statistics.median(loop) for value in bare]
    return [Figure(f"keystroke to painted, {count:,} processes", "ms",
                   {OURS: ours, FLOOR: floor, "a bare field": bare, "the loop": loop}, [at_most(1.2)]),
            Figure(f"process search among {count:,}", "ms", search,
                   [at_most(1.1), ahead_of("libproc2", "pgrep", "pidof")])]
