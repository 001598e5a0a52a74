"""Writes InfoPlist.strings: the texts that macOS shows about the application in one language.

usage: bundle_texts.py Info.plist TABLE.strings OUTPUT.strings
"""

import pathlib
import sys

import shown
import tables


def main(information_path, table_path, output_path):
    entries = tables.parse(tables.decode(pathlib.Path(table_path).read_bytes()))
    texts = {entry.key: entry.text for entry in entries}
    keys = shown.texts_of_information(pathlib.Path(information_path).read_bytes())
    escaped = {name: texts[key].replace("\\", "\\\\").replace('"', '\\"') for name, key in keys.items()}
    lines = [f'"{name}" = "{text}";\n' for name, text in escaped.items()]
    pathlib.Path(output_path).write_text("".join(lines), encoding="utf-8-sig")


if __name__ == "__main__":
    main(*sys.argv[1:])
