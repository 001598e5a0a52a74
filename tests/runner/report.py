"""What became of the tests: collected, printed, counted."""

from dataclasses import dataclass, field
from typing import List

PASSED, FAILED, SKIPPED = "passed", "failed", "skipped"


class Unable(Exception):
    """This machine cannot run a suite at all; the text is the reason."""


@dataclass
class Result:
    """One test's outcome. The detail is a failure's output or a skip's reason."""

    name: str
    outcome: str
    detail: str = ""


@dataclass
class Report:
    results: List[Result] = field(default_factory=list)

    def add(self, suite, results, seconds):
        """Prints a suite's results and keeps them."""
        for result in results:
            if result.outcome == FAILED:
                print(f"\nFAILED {suite}: {result.name}\n{result.detail.rstrip()}\n")
            elif result.outcome == SKIPPED:
                print(f"skipped {suite}: {result.name}: {result.detail.strip()}")
        passed = sum(result.outcome == PASSED for result in results)
        print(f"{suite}: {passed} of {len(results)} passed in {seconds:.1f} s", flush=True)
        self.results += results

    def count(self, outcome):
        return sum(result.outcome == outcome for result in self.results)

    def closing_line(self):
        return ", ".join(f"{self.count(outcome)} {outcome}" for outcome in (PASSED, FAILED, SKIPPED))

    def succeeded(self):
        """Whether nothing failed; a run in which nothing passed has not succeeded either."""
        return self.count(FAILED) == 0 and self.count(PASSED) > 0
