"""Writes InfoPlist.strings: the names by which macOS shows the application in one language.

usage: bundle_names.py TABLE.strings OUTPUT.strings
"""

import pathlib
import sys

import tables

_PROGRAM_NAME = "Vorx Launcher"


def main(table_path, output_path):
    entries = tables.parse(tables.decode(pathlib.Path(table_path).read_bytes()))
    name = {entry.key: entry.text for entry in entries}[_PROGRAM_NAME]
    escaped = name.replace("\\", "\\\\").replace('"', '\\"')
    lines = [f'"{key}" = "{escaped}";\n' for key in ("CFBundleDisplayName", "CFBundleName")]
    pathlib.Path(output_path).write_text("".join(lines), encoding="utf-8-sig")


if __name__ == "__main__":
    main(*sys.argv[1:])
