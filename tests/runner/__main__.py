"""Builds and runs the named test suites, or all but those on request; see script/test."""

import sys
import time

from report import FAILED, SKIPPED, Report, Result, Unable
from suites import ON_REQUEST, SUITES


def run(name):
    """A suite's results. One that cannot run here is skipped, one that cannot start has failed."""
    try:
        return SUITES[name].run()
    except Unable as reason:
        return [Result("all of it", SKIPPED, str(reason))]
    except Exception as error:
        return [Result("all of it", FAILED, f"{type(error).__name__}: {error}")]


def main(names):
    unknown = [name for name in names if name not in SUITES]
    if unknown:
        print(f"script/test: no suite is named '{unknown[0]}'; there are: {', '.join(SUITES)}",
              file=sys.stderr)
        return 2

    report = Report()
    for name in names or [name for name in SUITES if name not in ON_REQUEST]:
        start = time.monotonic()
        report.add(name, run(name), time.monotonic() - start)
    print(report.closing_line())
    return 0 if report.succeeded() else 1


sys.exit(main(sys.argv[1:]))
