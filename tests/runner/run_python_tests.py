"""Runs the tests in a folder's files of a pattern and writes a line on each to another file:
run_python_tests.py FOLDER PATTERN FILE"""

import json
import sys
import unittest

from report import FAILED, PASSED, SKIPPED


class _Recorder(unittest.TestResult):
    def __init__(self, file):
        super().__init__()
        self._file = file

    def _write(self, test, outcome, detail=""):
        row = {"name": test.id(), "outcome": outcome, "detail": detail}
        print(json.dumps(row), file=self._file, flush=True)

    def addSuccess(self, test):
        self._write(test, PASSED)

    def addSkip(self, test, reason):
        self._write(test, SKIPPED, reason)

    def addFailure(self, test, error):
        self._write(test, FAILED, self._exc_info_to_string(error, test))

    addError = addFailure

    def addSubTest(self, test, subtest, error):
        if error is not None:
            self.addFailure(subtest, error)


def _main(folder, pattern, file):
    tests = unittest.TestLoader().discover(folder, pattern=pattern, top_level_dir=folder)
    with open(file, "w", encoding="utf-8") as record:
        tests.run(_Recorder(record))


_main(*sys.argv[1:])
