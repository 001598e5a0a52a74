"""Runs the fuzz targets from their corpora: fuzz.py SECONDS [TARGET...]"""

import re
import sys
import time

from execution import execute, scratch_folder
from project import ROOT, build, build_folder, sources
from report import FAILED, PASSED, Report, Result

PRESET = "fuzz"
INPUTS_IN_TESTS = 30_000
MOST_MEGABYTES = 1024  # the sanitizer's own memory counts, too
SECONDS_PER_INPUT = 10  # only what hangs takes that long


def targets():
    return [path.stem for path in sources("tests/fuzz/*.cpp")]


def _command(target, limits, learnt):
    """What the target learns is written to the first folder only."""
    found = build_folder(PRESET) / "found" / target
    found.mkdir(parents=True, exist_ok=True)
    fuzz = ROOT / "tests" / "fuzz"
    return [str(build_folder(PRESET) / "tests" / "fuzz" / f"fuzz-{target}"), *limits,
            f"-timeout={SECONDS_PER_INPUT}", f"-rss_limit_mb={MOST_MEGABYTES}",
            f"-dict={fuzz}/dictionaries/{target}.dict", f"-artifact_prefix={found}/",
            "-print_final_stats=1", str(learnt), str(fuzz / "corpus" / target)]


def _fuzz(target, command):
    status, output = execute(command)
    executed = re.search(r"stat::number_of_executed_units:\s*(\d+)", output)
    print(f"{target}: {executed.group(1) if executed else 'unknown'} inputs", flush=True)
    return Result(target, PASSED if status == 0 else FAILED, output if status else "")


def run():
    """The same inputs each time, so that a change is judged by what it changes."""
    build("fuzz-targets", preset=PRESET)
    return [_try(target) for target in targets()]


def _try(target):
    with scratch_folder() as learnt:
        return _fuzz(target, _command(target, ["-seed=1", f"-runs={INPUTS_IN_TESTS}"], learnt))


def _search(target, seconds):
    """Other inputs each time, from what was learnt before."""
    learnt = build_folder(PRESET) / "learnt" / target
    learnt.mkdir(parents=True, exist_ok=True)
    return _fuzz(target, _command(target, [f"-max_total_time={seconds}"], learnt))


def main(seconds, *names):
    build("fuzz-targets", preset=PRESET)
    report = Report()
    start = time.monotonic()
    report.add("fuzz", [_search(target, seconds) for target in names or targets()],
               time.monotonic() - start)
    return 0 if report.succeeded() else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
