"""A disk image, attached and mounted read-only."""

import contextlib
import os
import plistlib
import re
import subprocess
import sys
import tempfile

from desktop.waiting import Failure, wait_until


class NotAllowed(Failure):
    """This machine does not let us attach images; the text is the reason."""


def _run(*command):
    try:
        done = subprocess.run(command, stdin=subprocess.DEVNULL, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
    except FileNotFoundError as error:
        raise NotAllowed(f"{command[0]} is not installed") from error
    if done.returncode != 0:
        words = done.stdout.strip().splitlines() or [f"{command[0]} failed"]
        raise NotAllowed(words[-1])
    return done.stdout


def _insist(*command):
    """Repeats a command until it succeeds: a volume stays busy for a moment after its last user."""
    def succeeds():
        with contextlib.suppress(NotAllowed):
            _run(*command)
            return True

    wait_until(succeeds, f"'{' '.join(command)}' succeeds")


@contextlib.contextmanager
def _by_root(file):
    with tempfile.TemporaryDirectory(prefix="vorx-") as place:
        folder = os.path.join(place, "Vorx Launcher")
        os.mkdir(folder)
        try:
            _run("mount", "-o", "ro,loop", str(file), folder)
            yield folder
        finally:
            if os.path.ismount(folder):
                _insist("umount", folder)  # this detaches the loop device too


@contextlib.contextmanager
def _by_desktop(file):
    def udisks(verb, *arguments):
        return ["udisksctl", verb, "--no-user-interaction", *arguments]

    answer = _run(*udisks("loop-setup", "--read-only", "--file", str(file)))
    device = re.search(r"/dev/loop\d+", answer).group()
    try:
        answer = _run(*udisks("mount", "--block-device", device))
        try:
            yield re.search(r" at (.*?)\.?$", answer.strip()).group(1)
        finally:
            _insist(*udisks("unmount", "--block-device", device))
    finally:
        _insist(*udisks("loop-delete", "--block-device", device))


@contextlib.contextmanager
def _by_mac(file):
    answer = _run("hdiutil", "attach", "-readonly", "-nobrowse", "-plist", str(file))
    entities = plistlib.loads(answer.encode())["system-entities"]
    folder = next(entity["mount-point"] for entity in entities if "mount-point" in entity)
    try:
        yield folder
    finally:
        _insist("hdiutil", "detach", folder)


WAYS = [_by_mac] if sys.platform == "darwin" else [_by_root, _by_desktop]


@contextlib.contextmanager
def attached(file):
    """Mounts an image's volume during the block, in the first way that works. Yields its folder."""
    reasons = []
    with contextlib.ExitStack() as stack:
        for way in WAYS:
            try:
                folder = stack.enter_context(way(file))
                break
            except NotAllowed as reason:
                reasons.append(str(reason))
        else:
            raise NotAllowed("; ".join(reasons))
        yield folder
