"""The tests once more, in builds that watch every access to memory and between threads."""

from googletest import GoogleTestSuite
from project import ROOT
from report import Result

# Where the platform's libraries let go of nothing at their end, that is not ours to report.
ENVIRONMENT = {
    "asan": {"LSAN_OPTIONS": f"suppressions={ROOT}/tests/sanitizers/leaks.txt:print_suppressions=0"},
    "tsan": {"TSAN_OPTIONS": f"suppressions={ROOT}/tests/sanitizers/races.txt"},
}

SUITES = {
    (preset, program): GoogleTestSuite(program, preset=preset, apart=apart,
                                       environment=ENVIRONMENT[preset])
    for preset in ENVIRONMENT
    for program, apart in (("unit-tests", False), ("contract-tests", True))
}


def run():
    return [_named(f"{preset}: {result.name}", result)
            for (preset, _), suite in SUITES.items() for result in suite.run()]


def _named(name, result):
    return Result(name, result.outcome, result.detail)
