#!/usr/bin/env python3
"""Stands in for a tool of macOS in the tests of make-image, under that tool's name.

Records each request as a line of the file that STAND_IN_RECORD names, with WORK for the script's own
folder. Does only what the script looks at afterwards. STAND_IN_FAILURES is a JSON object, such as
{"hdiutil attach": {"times": 2, "says": "Resource busy"}}: a request that begins with these words fails
so many times, or always if "times" is missing.
"""

import json
import os
import pathlib
import re
import shutil
import sys

RECORD = pathlib.Path(os.environ["STAND_IN_RECORD"])
FAILURES = json.loads(os.environ["STAND_IN_FAILURES"])

NOTARY_ANSWER = {"id": "1-2-3", "message": "Processing complete",
                 "status": os.environ["STAND_IN_NOTARY"]}


def option(arguments, name):
    return pathlib.Path(arguments[arguments.index(name) + 1])


def create(arguments):
    shutil.make_archive(arguments[-1], "tar", option(arguments, "-srcfolder"))
    os.rename(f"{arguments[-1]}.tar", arguments[-1])


def attach(arguments):
    place = option(arguments, "-mountpoint")
    if not place.is_dir():
        sys.exit(f"hdiutil: attach failed - no mount point {place}")
    shutil.unpack_archive(arguments[-1], place, "tar")


def detach(arguments):
    for entry in pathlib.Path(arguments[-1]).iterdir():
        shutil.rmtree(entry)


def submit(_arguments):
    print(json.dumps(NOTARY_ANSWER))


ANSWERS = {
    "hdiutil create": create,
    "hdiutil attach": attach,
    "hdiutil detach": detach,
    "uname -s": lambda _: print("Darwin"),
    "xcrun notarytool submit": submit,
    "xcrun notarytool log": lambda _: print("the notary's reasons"),
}


def begins(request, start):
    return request == start or request.startswith(f"{start} ")


def failure_of(request):
    """The failure of this request, or None."""
    asked = RECORD.read_text().splitlines()
    for start, failure in FAILURES.items():
        before = sum(begins(line, start) for line in asked)
        if begins(request, start) and before < failure.get("times", before + 1):
            return failure["says"]
    return None


def main():
    words = " ".join([pathlib.Path(sys.argv[0]).name, *sys.argv[1:]])
    request = re.sub(r"/\S*/\.make-image\.\w+", "WORK", words)
    failure = failure_of(request)
    with RECORD.open("a") as record:
        print(request, file=record)
    if failure is not None:
        sys.exit(failure)
    for start, answer in ANSWERS.items():
        if begins(request, start):
            answer(sys.argv[1:])


if __name__ == "__main__":
    main()
