#!/usr/bin/env python3
"""Checks that the sources in some folders follow .clang-tidy.

Usage: tidy.py FOLDER...

The lists of checks are made for one version of clang-tidy; others find other things, so with them it
skips. Checks a file again only after a change to the file, to a header of ours that it reaches, to its compile
command or to the lists of checks.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

from arrows import ROOT, includes

LISTS = [ROOT / ".clang-tidy", ROOT / "tests/.clang-tidy"]
BUILD = ROOT / "build/lint"
COMMANDS = BUILD / "commands"
VERSION = "14"
SKIPPED = 77
REMEMBERED = BUILD / "passed"


def output_of(*command):
    return subprocess.run(command, cwd=ROOT, check=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE).stdout


def reached(path, seen):
    """The file and every header of ours that it reaches."""
    if path not in seen:
        seen.add(path)
        for name in includes(path):
            for candidate in (ROOT / name, path.parent / name):
                if candidate.is_file():
                    reached(candidate.resolve(), seen)
    return seen


def fingerprint(path, command, habits):
    digest = hashlib.sha256(habits + command.encode())
    for file in sorted(reached(path, set())):
        digest.update(file.read_bytes())
    return digest.hexdigest()


def compiled():
    """How the build compiles each file. Some are part of several programs; once is enough."""
    entries = json.loads((BUILD / "compile_commands.json").read_text())
    once = {pathlib.Path(entry["file"]).resolve(): entry for entry in entries}
    COMMANDS.mkdir(exist_ok=True)
    (COMMANDS / "compile_commands.json").write_text(json.dumps(list(once.values())))
    return {path: entry["command"] for path, entry in once.items()}


def check(path, mark):
    """Whether a file passes. Prints what is wrong with it."""
    if mark.exists():
        return True
    done = subprocess.run(["nice", "clang-tidy", "--quiet", f"-p={COMMANDS}", path], text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0:
        print(done.stdout, flush=True)
        return False
    mark.touch()
    return True


def main(folders):
    version = output_of("clang-tidy", "--version")
    if f"version {VERSION}.".encode() not in version:
        print(f"the lists of checks are for clang-tidy {VERSION}")
        return SKIPPED
    output_of("cmake", "--preset", "lint")
    REMEMBERED.mkdir(exist_ok=True)
    habits = version + b"".join(path.read_bytes() for path in LISTS)
    marks = {path: REMEMBERED / fingerprint(path, command, habits)
             for path, command in compiled().items()
             if any(path.is_relative_to(ROOT / folder) for folder in folders)}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return 0 if all(list(pool.map(check, marks.keys(), marks.values()))) and marks else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
