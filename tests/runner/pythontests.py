"""A suite that is a folder of Python tests."""

import json
import pathlib
import sys

from execution import execute, execute_apart, scratch_folder
from project import ROOT, build
from report import FAILED, Result

PROGRAM = pathlib.Path(__file__).with_name("run_python_tests.py")
ENVIRONMENT = {"PYTHONPATH": str(ROOT / "script" / "lib"), "PYTHONDONTWRITEBYTECODE": "1"}


class PythonSuite:
    def __init__(self, folder, *, pattern="*_test.py", targets=(), apart=False, display=False):
        self._folder = folder
        self._pattern = pattern
        self._targets = targets
        self._apart = apart
        self._display = display

    def run(self):
        build(*self._targets)
        with scratch_folder() as folder:
            record = folder / "results"
            command = [sys.executable, str(PROGRAM), str(ROOT / self._folder), self._pattern,
                       str(record)]
            if self._apart:
                status, output = execute_apart(command, folder=folder, display=self._display,
                                               environment=ENVIRONMENT)
            else:
                status, output = execute(command, environment=ENVIRONMENT)
            return _results(record, self._folder, status, output)


def _results(record, folder, status, output):
    lines = record.read_text().splitlines() if record.exists() else []
    results = [Result(**json.loads(line)) for line in lines]
    if status != 0:
        results.append(Result(folder, FAILED, f"{output}\nended with status {status}"))
    return results
