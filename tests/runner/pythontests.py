"""A suite that is a folder of Python tests. Run as a program, it is what runs the folder."""

import contextlib
import json
import pathlib
import sys
import tempfile
import unittest

from report import FAILED, PASSED, SKIPPED, Result


class PythonSuite:
    def __init__(self, folder, *, targets=(), isolated=False, display=False):
        self._folder = folder
        self._targets = targets
        self._isolated = isolated
        self._display = display

    def run(self):
        from execution import execute, own_display
        from project import ROOT, build

        if self._targets:
            build(*self._targets)
        with contextlib.ExitStack() as stack:
            environment = {"PYTHONPATH": str(ROOT / "script" / "lib"), "PYTHONUNBUFFERED": "1",
                           "PYTHONDONTWRITEBYTECODE": "1"}
            if self._display:
                environment.update(stack.enter_context(own_display()))
            folder = stack.enter_context(tempfile.TemporaryDirectory())
            record = pathlib.Path(folder) / "results.json"
            status, output = execute([sys.executable, __file__, str(ROOT / self._folder), str(record)],
                                     apart=self._isolated, environment=environment)
            if not record.exists():
                return [Result(self._folder, FAILED, f"{output}\nended with status {status}")]
            return [Result(**row) for row in json.loads(record.read_text())]


class _Recorder(unittest.TestResult):
    def __init__(self):
        super().__init__()
        self.rows = []

    def _add(self, test, outcome, detail=""):
        name = test.id() if hasattr(test, "id") else str(test)
        self.rows.append({"name": name, "outcome": outcome, "detail": detail})

    def addSuccess(self, test):
        self._add(test, PASSED)

    def addSkip(self, test, reason):
        self._add(test, SKIPPED, reason)

    def addFailure(self, test, error):
        self._add(test, FAILED, self._exc_info_to_string(error, test))

    addError = addFailure

    def addSubTest(self, test, subtest, error):
        if error is not None:
            self.addFailure(subtest, error)


def _main(folder, record):
    recorder = _Recorder()
    unittest.defaultTestLoader.discover(folder, pattern="*_test.py", top_level_dir=folder).run(recorder)
    pathlib.Path(record).write_text(json.dumps(recorder.rows))


if __name__ == "__main__":
    _main(*sys.argv[1:])
