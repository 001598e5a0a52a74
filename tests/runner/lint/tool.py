"""Runs a checking tool on one file or on many, two at a time."""

import concurrent.futures
import os
import shutil
import subprocess

from project import ROOT
from report import FAILED, PASSED, SKIPPED, Result


def check_each(paths, check):
    """The results of `check` for every path, in the paths' order, as many at a time as there are
    processors."""
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(pool.map(check, paths))


def check_with(command, path):
    """What a tool says of a file: its output is the failure's detail."""
    name = f"{command[0]} {path.relative_to(ROOT)}"
    if shutil.which(command[0]) is None:
        return Result(name, SKIPPED, f"{command[0]} is not installed")
    done = subprocess.run([*command, str(path)], cwd=ROOT, text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return Result(name, PASSED if done.returncode == 0 else FAILED, done.stdout)
