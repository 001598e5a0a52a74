"""Writes the strings tables of all languages as C++ source, for the window on Linux.

usage: text_tables.py TABLE.strings... OUTPUT.cpp
"""

import pathlib
import sys

import tables

_SOURCE = """\
// Made by script/lib/localised/text_tables.py.
#include <array>

#include "controller/linux/TextTables.h"

namespace launcher {{
namespace {{

{entries}
constexpr std::array allTables{{
{list}
}};

}}  // namespace

std::span<const TextTable> textTables() {{ return allTables; }}

}}  // namespace launcher
"""


def _literal(text):
    """A text as a C++ literal."""
    escapes = {"\\": "\\\\", '"': '\\"', "\n": "\\n", "\t": "\\t"}
    return '"' + "".join(escapes.get(character, character) for character in text) + '"'


def _entries(number, path):
    entries = tables.parse(tables.decode(path.read_bytes()))
    lines = [f"    TextTable::Entry{{{_literal(entry.key)}, {_literal(entry.text)}}}," for entry in entries]
    return "\n".join([f"constexpr std::array table{number}{{", *lines, "};\n"])


def source(paths):
    """The source text for the tables at these paths, each in a folder named LANGUAGE.lproj."""
    return _SOURCE.format(
        entries="\n".join(_entries(number, path) for number, path in enumerate(paths)),
        list="\n".join(f"    TextTable{{{_literal(path.parent.stem)}, table{number}}},"
                       for number, path in enumerate(paths)))


def main(*arguments):
    *table_paths, output = map(pathlib.Path, arguments)
    output.write_text(source(table_paths), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
