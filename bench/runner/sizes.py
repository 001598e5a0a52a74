"""What is shipped, without the viewer."""

import pathlib

from figures import OURS, Figure
from windows import APPLICATION, PROGRAM


def _megabytes(files):
    return sum(file.stat().st_size for file in files) / 1e6


def sizes():
    files = [file for file in pathlib.Path(APPLICATION).rglob("*")
             if file.is_file() and file.name != "vexlink"]
    return [Figure("size of the program", "MB", {OURS: [_megabytes([APPLICATION / PROGRAM])]}),
            Figure("size of the bundle without the viewer", "MB", {OURS: [_megabytes(files)]})]
