"""A suite that is one GoogleTest program."""

import contextlib
import pathlib
import tempfile
import xml.etree.ElementTree as ElementTree

from execution import execute, own_display
from project import BUILD, build
from report import FAILED, PASSED, SKIPPED, Result


class GoogleTestSuite:
    def __init__(self, program, *, isolated=False, display=False):
        self._program = program
        self._isolated = isolated
        self._display = display

    def run(self):
        build(self._program)
        with contextlib.ExitStack() as stack:
            environment = stack.enter_context(own_display()) if self._display else {}
            folder = stack.enter_context(tempfile.TemporaryDirectory())
            record = pathlib.Path(folder) / "results.xml"
            program = BUILD / "tests" / self._program
            status, output = execute([str(program), f"--gtest_output=xml:{record}"],
                                     apart=self._isolated, environment=environment)
            return _results(record, self._program, status, output)


def _results(record, program, status, output):
    if not record.exists():
        return [Result(program, FAILED, f"{output}\nended with status {status} and no results")]
    results = [_result(case) for case in ElementTree.parse(record).iter("testcase")]
    if status != 0 and all(result.outcome != FAILED for result in results):
        results.append(Result(program, FAILED, f"{output}\nended with status {status}"))
    return results


def _result(case):
    name = f"{case.get('classname')}.{case.get('name')}"
    failures = [failure.text or failure.get("message") for failure in case.iter("failure")]
    if failures:
        return Result(name, FAILED, "\n".join(failures))
    skips = [skip.text or skip.get("message") for skip in case.iter("skipped")]
    if skips:
        return Result(name, SKIPPED, _without_place(skips[0]))
    return Result(name, PASSED)


def _without_place(reason):
    """GoogleTest puts FILE:LINE on a line of its own before a skip's reason."""
    return " ".join(reason.strip().splitlines()[1:]) or "no reason given"
