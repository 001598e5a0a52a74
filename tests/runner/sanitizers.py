"""The tests once more, in builds that watch every access to memory and between threads."""

from googletest import GoogleTestSuite
from project import ROOT
from report import Result

# Where the platform's libraries let go of nothing at their end, that is not ours to report.
ENVIRONMENT = {
    "asan": {"LSAN_OPTIONS": f"suppressions={ROOT}/tests/sanitizers/leaks.txt:print_suppressions=0"},
    "tsan": {"TSAN_OPTIONS": f"suppressions={ROOT}/tests/sanitizers/races.txt"},
}

# The toolkit lets go of little at its end, and is not built to be watched: of its threads only the
# locks are seen.
WINDOW_ENVIRONMENT = {
    "asan": {"ASAN_OPTIONS": "detect_leaks=0"},
    "tsan": {"TSAN_OPTIONS": "ignore_noninstrumented_modules=1"},
}


class SanitizedSuites:
    """Programs of tests in each of the builds."""

    def __init__(self, environment, programs, **options):
        self._suites = {(preset, program): GoogleTestSuite(program, preset=preset,
                                                           environment=environment[preset], **options)
                        for preset in environment for program in programs}

    def run(self):
        return [_named(f"{preset}: {result.name}", result)
                for (preset, _), suite in self._suites.items() for result in suite.run()]


def _named(name, result):
    return Result(name, result.outcome, result.detail)


LOGIC = SanitizedSuites(ENVIRONMENT, ["unit-tests", "contract-tests"], apart=True)
WINDOW = SanitizedSuites(WINDOW_ENVIRONMENT, ["appkit-window-tests"], apart=True, display=True)
