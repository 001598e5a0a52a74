#!/usr/bin/env python3
"""Every file lies in the right room and platform folder, and includes run one way.

A room's own files are logic: they know neither platform nor toolkit. Code for one system lies in the
room's folder for that system. Only the files that wire the parts together include from there.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PLATFORMS = {"linux", "mac"}
MAY_INCLUDE = {
    "base": ["base"],
    "process": ["base", "process"],
    "net": ["base", "net"],
    "discovery": ["base", "discovery"],
    "controller": ["base", "process", "net", "discovery", "controller"],
    "app": ["base", "process", "net", "discovery", "controller", "app"],
    "viewer": ["viewer"],
}

# Recognises which platform a system header belongs to.
SYSTEM_HEADERS = {
    "mac": re.compile(r"(AppKit|Cocoa|CoreFoundation|CoreGraphics|CoreServices|CFNetwork|Foundation|"
                      r"QuartzCore|dispatch|mach|objc)/|sys/sysctl\.h$"),
    "linux": re.compile(r"(QtCore|X11|gio|glib|linux|unicode)(/|$)|libmount\.h$|"
                        r"sys/(epoll|inotify|pidfd|prctl|signalfd|sysmacros)\.h$"),
}
WINDOW_TOOLKIT = re.compile(r"Q[A-Z]\w*$")
WINDOWS = ["app/linux", "controller/linux", "viewer/linux"]
SUFFIX = re.compile(r"_(mac|linux|gnustep|foundation)(Test)?\.\w+$")
INCLUDE = re.compile(r'^\s*#\s*(include|import)\s*[<"]([^>"]+)[>"]', re.MULTILINE)


def includes(path):
    """The names that a file includes, in order, as written."""
    return [name for _, name in INCLUDE.findall(path.read_text())]


def platform_of(parts):
    """The platform whose folder a path lies in; None if both platforms share the path."""
    return next((part for part in parts if part in PLATFORMS), None)


def _misplaced(path, parts):
    platform = platform_of(parts)
    if SUFFIX.search(path.name):
        yield "a platform is a folder, not a suffix"
    if platform != "mac" and (path.suffix == ".mm" or "#import" in path.read_text()):
        yield "Objective-C++ belongs into a mac/ folder"
    for owner, headers in SYSTEM_HEADERS.items():
        for name in includes(path):
            if headers.match(name) and platform != owner:
                yield f"<{name}> belongs into a {owner}/ folder"
    for name in includes(path):
        if WINDOW_TOOLKIT.match(name) and "/".join(parts[:2]) not in WINDOWS:
            yield f"<{name}> belongs to a window: {', '.join(WINDOWS)}"


def _wrong_arrows(parts, names):
    room, platform = parts[0], platform_of(parts)
    for name in names:
        if not (ROOT / name).exists():
            continue
        target = name.split("/")
        if target[0] not in MAY_INCLUDE[room]:
            yield f"{room}/ must not include {name}"
        owner = platform_of(target)
        if owner is not None and owner != platform:
            yield f"{name} is the {owner} platform's own"


def faults(path):
    """What is wrong with a product file's place and its includes, one line per fault."""
    relative = path.relative_to(ROOT)
    parts = relative.parts
    return [f"{relative}: {fault}"
            for fault in (*_misplaced(path, parts), *_wrong_arrows(parts, includes(path)))]


def main():
    files = [path for room in MAY_INCLUDE for path in sorted((ROOT / room).rglob("*"))
             if path.suffix in (".h", ".cpp", ".mm")]
    found = [fault for path in files for fault in faults(path)]
    print(*found, sep="\n")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
