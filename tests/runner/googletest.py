"""A suite that is one GoogleTest program."""

import xml.etree.ElementTree as ElementTree

from execution import execute, execute_apart, scratch_folder
from project import PRESET, build, build_folder
from report import FAILED, PASSED, SKIPPED, Result


class GoogleTestSuite:
    def __init__(self, program, *, preset=PRESET, apart=False, display=False, environment=None):
        self._program = program
        self._preset = preset
        self._apart = apart
        self._display = display
        self._environment = environment

    def run(self):
        build(self._program, preset=self._preset)
        program = _built(self._preset, self._program)
        with scratch_folder() as folder:
            record = folder / "results.xml"
            command = [str(program), f"--gtest_output=xml:{record}"]
            if self._apart:
                status, output = execute_apart(command, folder=folder, display=self._display,
                                               environment=self._environment)
            else:
                status, output = execute(command, environment=self._environment)
            return _results(record, self._program, status, output)


def _built(preset, name):
    """Where a program of tests lies: one that shows windows is an application on a Mac."""
    folder = build_folder(preset) / "tests"
    application = folder / f"{name}.app" / "Contents" / "MacOS" / name
    return application if application.exists() else folder / name


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
