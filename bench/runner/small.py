"""The small things: Google Benchmark for ours and for libraries, node for its packages."""

import collections
import json
import math
import shutil
import subprocess

from figures import FLOOR, OURS, Figure, Unavailable, ahead_of, at_most, linear, under
from project import BUILD, ROOT

PROGRAM = BUILD / "bench/small/bench-small"
NODE_PACKAGES = BUILD / "bench/node_modules"
ROUNDS, LINK_ROUNDS = 5, 3
HOSTILE = (10_000, 100_000)


def measured(pattern, clock="cpu_time"):
    """Nanoseconds of the measurements that match, by their names: of processor time, or by the
    clock that is named."""
    done = subprocess.run([PROGRAM, f"--benchmark_filter={pattern}", "--benchmark_min_time=0.03",
                           "--benchmark_format=json"], stdin=subprocess.DEVNULL, check=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return {run["name"]: run[clock] for run in json.loads(done.stdout)["benchmarks"]}


def _of_node():
    """The same of the packages that node has, and a reason why there are none."""
    if shutil.which("node") is None:
        return {}, {"node's packages": "node is not installed"}
    if not NODE_PACKAGES.is_dir():
        return {}, {"node's packages": "npm could not install them"}
    done = subprocess.run(["node", ROOT / "bench/small/link-peers.mjs", NODE_PACKAGES], text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    if done.returncode != 0:
        return {}, {"node's packages": (done.stderr.strip().splitlines() or ["node failed"])[-1]}
    return json.loads(done.stdout), {}


def _contestants(rounds, group):
    """Of measurements named GROUP/NAME: the values by name."""
    found = collections.defaultdict(list)
    for values in rounds:
        for name, value in values.items():
            room, _, contestant = name.partition("/")
            if room == group:
                found[contestant].append(value)
    return dict(found)


def _in(unit, values):
    scale = {"ns": 1, "µs": 1e3, "ms": 1e6}[unit]
    return {name: [value / scale for value in each] for name, each in values.items()}


def links():
    rounds, missing = [], {}
    for _ in range(LINK_ROUNDS):
        of_node, missing = _of_node()
        rounds.append(measured("^(typed|megabyte|hostile)/") | of_node)
    libraries = {} if "typed/cmark-gfm" in rounds[0] else {"cmark-gfm": "not installed"}
    missing = missing | libraries
    return [
        Figure("link check of a typed location", "ns", _contestants(rounds, "typed"), missing,
               [under(300, "ns"), ahead_of()]),
        Figure("links in 1 MB of text", "ms", _in("ms", _contestants(rounds, "megabyte")), missing,
               [ahead_of()]),
        Figure("links in the worst hostile text of 10 KB", "ms",
               _in("ms", _worst(_contestants(rounds, "hostile"))), missing, [ahead_of()]),
        Figure("growth of the least linear of them", "(power)",
               _growth(_contestants(rounds, "hostile")), {}, [linear()]),
    ]


def _worst(hostile):
    """Each contestant's slowest text, round by round."""
    found = collections.defaultdict(list)
    for name, values in hostile.items():
        contestant, _, size = name.split("/")
        if int(size) == HOSTILE[0]:
            found[contestant].append(values)
    return {name: [max(round) for round in zip(*texts)] for name, texts in found.items()}


def _growth(hostile):
    """The power of the size with which the time grows, in the worst text; sizes differ by ten."""
    factors = [[math.log10(large / small) for small, large in zip(values, hostile[f"ours/{text}/{HOSTILE[1]}"])]
               for name, values in hostile.items()
               for contestant, text, size in [name.split("/")]
               if contestant == OURS and int(size) == HOSTILE[0]]
    return {OURS: [max(round) for round in zip(*factors)]}


def property_lists():
    rounds = [measured("^list/") for _ in range(ROUNDS)]
    figures = []
    for images in (1, 50, 1000):
        of_size = [{name.removesuffix(f"/{images}"): value for name, value in values.items()
                    if name.endswith(f"/{images}")} for values in rounds]
        values = _in("µs", _contestants(of_size, "list"))
        missing = {name: "not installed" for name in ("libplist", "GNUstep") if name not in values}
        figures.append(Figure(f"property list with {images:,} image{'s' if images > 1 else ''}", "µs",
                              values, missing, [ahead_of()]))
    return figures


def searches(rounds, processes):
    """The process search, from rounds of measurements among so many processes."""
    values = _in("ms", _contestants(rounds, "search"))
    missing = {name: "not installed" for name in ("libproc2", "pgrep -x", "pidof")
               if name not in values}
    return Figure(f"process search among {processes:,}", "ms", values, missing,
                  [at_most(1.1), ahead_of("pgrep -x", factor=10)])


def curves():
    """Growth: the points, size and nanoseconds, by what grows."""
    best = {}
    for _ in range(3):
        for name, value in measured("^growth/").items():
            best[name] = min(value, best.get(name, value))
    found = collections.defaultdict(list)
    for name, value in best.items():
        _, what, size = name.split("/")
        found[what].append((int(size), value))
    if not found:
        raise Unavailable("the benchmarks were not built")
    return {what: sorted(points) for what, points in found.items()}


def growths(points):
    """The power of the size with which the time grows, over the second half of each curve."""
    def power(curve):
        (size, time), (larger, longer) = curve[len(curve) // 2 - 1], curve[-1]
        return math.log(longer / time) / math.log(larger / size)

    return [Figure(f"growth, {curve[0][0]:,} to {curve[-1][0]:,} {what}", "(power)",
                   {OURS: [power(curve)]}, {}, [linear()])
            for what, curve in points.items()]
