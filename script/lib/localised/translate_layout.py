"""Writes a layout file in one language, with its texts replaced from a strings table.

usage: translate_layout.py LAYOUT.xib TABLE.strings OUTPUT.xib
"""

import pathlib
import sys
import xml.etree.ElementTree

import shown
import tables


def translate(layout, texts):
    """Replaces each text that the layout shows, if it has a translation; the others stay."""
    for element in layout.iter():
        for name in shown.shown_attributes(element):
            if element.get(name) in texts:
                element.set(name, texts[element.get(name)])


def main(layout_path, table_path, output_path):
    entries = tables.parse(tables.decode(pathlib.Path(table_path).read_bytes()))
    layout = xml.etree.ElementTree.parse(layout_path)
    translate(layout, {entry.key: entry.text for entry in entries})
    layout.write(output_path, encoding="UTF-8", xml_declaration=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
