"""Runs the fuzz targets from their corpora: fuzz.py SECONDS [TARGET...]"""

import re
import sys

from execution import execute
from project import ROOT, build, build_folder, sources
from report import FAILED, PASSED, Report, Result

PRESET = "fuzz"
SECONDS_IN_TESTS = 5
MOST_MEGABYTES = 1024  # the sanitizer's own memory counts, too
SECONDS_PER_INPUT = 10  # only what hangs takes that long


def targets():
    return [path.stem for path in sources("tests/fuzz/*.cpp")]


def _command(target, seconds):
    folder = build_folder(PRESET)
    learnt, found = folder / "learnt" / target, folder / "found" / target
    for made in (learnt, found):
        made.mkdir(parents=True, exist_ok=True)
    fuzz = ROOT / "tests" / "fuzz"
    return [str(folder / "tests" / "fuzz" / f"fuzz-{target}"), f"-max_total_time={seconds}",
            f"-timeout={SECONDS_PER_INPUT}", f"-rss_limit_mb={MOST_MEGABYTES}",
            f"-dict={fuzz}/dictionaries/{target}.dict", f"-artifact_prefix={found}/",
            "-print_final_stats=1", str(learnt), str(fuzz / "corpus" / target)]


def _fuzz(target, seconds):
    status, output = execute(_command(target, seconds))
    executed = re.search(r"stat::number_of_executed_units:\s*(\d+)", output)
    print(f"{target}: {executed.group(1) if executed else 'unknown'} inputs", flush=True)
    return Result(target, PASSED if status == 0 else FAILED, output if status else "")


def run(seconds=SECONDS_IN_TESTS, names=None):
    build("fuzz-targets", preset=PRESET)
    return [_fuzz(target, seconds) for target in names or targets()]


def main(seconds, *names):
    report = Report()
    report.add("fuzz", run(int(seconds), names), int(seconds) * len(names or targets()))
    return 0 if report.succeeded() else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
