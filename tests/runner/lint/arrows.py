"""Includes run one way between the rooms, and the logic sees no window toolkit."""

import re

from project import ROOT, cxx_sources
from report import FAILED, PASSED, Result

LOGIC = ["base", "process", "net", "discovery", "controller"]
MAY_INCLUDE = {
    "base": ["base"],
    "process": ["base", "process"],
    "net": ["base", "net"],
    "discovery": ["base", "discovery"],
    "controller": LOGIC,
}
TOOLKIT = re.compile(r"(AppKit|Cocoa|CoreFoundation|CoreServices|CFNetwork|Foundation|GNUstep\w*|"
                     r"QuartzCore|objc|X11)/")
PLATFORM_FILE = re.compile(r"_(mac|linux|gnustep)\.(h|cpp)$")
INCLUDE = re.compile(r'^\s*#\s*(include|import)\s*[<"]([^>"]+)[>"]', re.MULTILINE)


def includes(path):
    """The names that a file includes, in its order, as they are written."""
    return [name for _, name in INCLUDE.findall(path.read_text())]


def is_toolkit(path):
    """Whether a file is Objective-C++ or one platform's own."""
    return (path.suffix == ".mm" or PLATFORM_FILE.search(path.name) is not None
            or "#import" in path.read_text())


def _faults(path):
    room = path.relative_to(ROOT).parts[0]
    if room not in LOGIC:
        return
    for name in includes(path):
        other = ROOT / name
        if other.exists() and name.split("/")[0] not in MAY_INCLUDE[room]:
            yield f"{room}/ must not include {name}"
        if is_toolkit(path):
            continue
        if TOOLKIT.match(name):
            yield f"the logic must not include <{name}>"
        if other.exists() and other.suffix == ".h" and "#import" in other.read_text():
            yield f"the logic must not include {name}, a header of the window toolkit"


def check():
    results = []
    for path in cxx_sources():
        faults = list(_faults(path))
        name = f"includes of {path.relative_to(ROOT)}"
        results.append(Result(name, FAILED if faults else PASSED, "\n".join(faults)))
    return results
