"""Compares what the program shows with a strings table."""

import collections
import re

_PLACEHOLDER = re.compile(r"%(?:\d+\$)?[@a-zA-Z]")
_NAME = "Vorx"


def _twice(keys):
    return [key for key, count in collections.Counter(keys).items() if count > 1]


def _kept(what, key, text):
    return sorted(re.findall(what, key)) == sorted(re.findall(what, text))


def _faults_of_entry(entry, comments):
    comment = comments[entry.key]
    if entry.comment != comment:
        yield f'the comment of "{entry.key}" is "{entry.comment}", not "{comment}"'
    if not entry.text.strip():
        yield f'"{entry.key}" is translated by nothing'
    elif not _kept(_PLACEHOLDER, entry.key, entry.text):
        yield f'the placeholders of "{entry.key}" differ from those of "{entry.text}"'
    elif not _kept(_NAME, entry.key, entry.text):
        yield f'the name {_NAME} is not kept in "{entry.text}"'


def faults(entries, comments):
    """What is wrong with a table's entries. `comments`: each shown text → its translators' comment."""
    keys = [entry.key for entry in entries]
    yield from (f'"{key}" is there twice' for key in _twice(keys))
    yield from (f'"{key}" is missing' for key in sorted(comments.keys() - set(keys)))
    for entry in entries:
        if entry.key in comments:
            yield from _faults_of_entry(entry, comments)
        else:
            yield f'"{entry.key}" is not used'


def faults_of_english(entries):
    """The entries of the English table whose text differs from the key. The other tables follow it."""
    return [f'"{entry.key}" reads "{entry.text}"' for entry in entries if entry.key != entry.text]
