#!/usr/bin/env python3
"""Summarises a run of CTest, test by test: summary.py BUILD_FOLDER

Reads CTest's own record, results.xml, and the record of each test program in results/. Prints the
failures, the reasons for skips, the longest tests and the closing line. Ends with 1 if a test failed or
none passed.
"""

import collections
import pathlib
import sys
from xml.etree import ElementTree

LONGEST = 5


def cases(record):
    """Outcome, name and detail of each test in a program's record."""
    for case in ElementTree.parse(record).iter("testcase"):
        name = f"{case.get('classname')}.{case.get('name')}"
        skip = case.find("skipped")
        if case.find("failure") is not None or case.find("error") is not None:
            yield "failed", name, ""
        elif skip is not None:
            yield "skipped", name, reason_of(skip)
        else:
            yield "passed", name, ""


def reason_of(skip):
    """GoogleTest puts FILE:LINE on a line of its own before the reason."""
    lines = (skip.get("message") or skip.text or "").strip().splitlines()
    return " ".join(lines[1:] or lines) or "no reason given"


def outcomes(test, results):
    """The same for one of CTest's tests. One without a record counts as one test. A step of the build
    counts only if it fails."""
    name, status = test.get("name"), test.get("status")
    record = results / f"{name}.xml"
    if status == "notrun" and "SKIP_RETURN_CODE" in str(test.find("skipped").get("message")):
        return [("skipped", name, test.findtext("system-out").strip())]
    found = list(cases(record)) if record.exists() else []
    if status == "run":
        return found or ([] if name.startswith("build.") else [("passed", name, "")])
    return found if any(outcome == "failed" for outcome, _, _ in found) else [*found, ("failed", name, "")]


def main(folder):
    tests = ElementTree.parse(folder / "results.xml").findall("testcase")
    found = [each for test in tests for each in outcomes(test, folder / "results")]
    for outcome, name, detail in found:
        if outcome != "passed":
            print(f"{outcome}: {name}: {detail}".rstrip(": "))
    by_time = sorted(tests, key=lambda test: -float(test.get("time")))[:LONGEST]
    print("longest:", ", ".join(f"{test.get('name')} {float(test.get('time')):.1f} s" for test in by_time))
    count = collections.Counter(outcome for outcome, _, _ in found)
    print(f"{count['passed']} passed, {count['failed']} failed, {count['skipped']} skipped")
    return 1 if count["failed"] or not count["passed"] else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
