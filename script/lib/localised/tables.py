"""Reads strings tables. An entry is a translators' comment, then "key" = "text";"""

import codecs
import collections
import re

Entry = collections.namedtuple("Entry", "comment key text")

_QUOTED = r'"((?:[^"\\]|\\.)*)"'
_TOKEN = re.compile(rf"\s+|/\*(?P<comment>.*?)\*/|{_QUOTED}\s*=\s*{_QUOTED}\s*;", re.DOTALL)
_ESCAPE = re.compile(r"\\(U[0-9a-fA-F]{4}|.)", re.DOTALL)


class Unreadable(Exception):
    """One of the platforms cannot read the table."""


def _unescaped(text):
    def character(escape):
        code = escape[1]
        return chr(int(code[1:], 16)) if code[0] == "U" else {"n": "\n", "t": "\t"}.get(code, code)
    return _ESCAPE.sub(character, text)


def decode(data):
    """The table's text. Requires a byte-order mark: without it one platform would assume another
    encoding."""
    if not data.startswith(codecs.BOM_UTF8):
        raise Unreadable("does not begin with UTF-8's byte-order mark")
    try:
        return data.decode("utf-8-sig")
    except UnicodeDecodeError as error:
        raise Unreadable(f"is not UTF-8 at byte {error.start}") from error


def parse(text):
    """The entries in their order, each with the comment right before it, or None."""
    entries, comment, position = [], None, 0
    while position < len(text):
        token = _TOKEN.match(text, position)
        if token is None:
            line = text.count("\n", 0, position) + 1
            raise Unreadable(f"is not understood from line {line} on")
        if token["comment"] is not None:
            comment = token["comment"].strip()
        elif token[2] is not None:
            entries.append(Entry(comment, _unescaped(token[2]), _unescaped(token[3])))
            comment = None
        position = token.end()
    return entries
