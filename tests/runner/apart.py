#!/usr/bin/env python3
"""Runs a command apart from the machine's own processes, memory, mounts, network and displays:
apart.py [--display] COMMAND...

Tests start, find and signal processes by name. Apart, they meet only their own processes, and
whatever they leave behind ends with them. If the machine does not allow this, they run among its
processes. With --display the command gets a display of its own. If there is none, prints the reason
and ends with 77. On a Mac all commands share the one display.
"""

import contextlib
import fcntl
import os
import pathlib
import socket
import struct
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
NAMESPACES = ["--mount", "--pid", "--ipc", "--net", "--fork", "--kill-child", "--mount-proc"]
WITH_THIS_SCRIPT = ["setpriv", "--pdeathsig", "KILL"]  # ends what runs apart, should this be killed
AS_ROOT = [*WITH_THIS_SCRIPT, "unshare", *NAMESPACES]
AS_USER = [*WITH_THIS_SCRIPT, "unshare", "--user", "--map-current-user", "--keep-caps", *NAMESPACES]
WITHOUT_DISPLAY = 77


def prefix():
    for each in (AS_ROOT, AS_USER):
        with contextlib.suppress(OSError, subprocess.CalledProcessError):
            subprocess.run([*each, "true"], check=True, stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            return each
    print("note: not allowed to run apart from this machine's processes, so among them", flush=True)
    return []


def mount(source, target):
    subprocess.run(["mount", "--rbind", str(source), str(target)], check=True)


def take_the_place_of_tmp(folder):
    """Hides /tmp, where displays reserve their numbers. A project below /tmp stays in its place."""
    place = pathlib.Path("/tmp")
    if ROOT.is_relative_to(place):
        inside = folder / ROOT.relative_to(place)
        inside.mkdir(parents=True)
        mount(ROOT, inside)
    mount(folder, place)


def bring_loopback_up():
    up, set_flags = 0x1, 0x8914  # IFF_UP, SIOCSIFFLAGS
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, set_flags, struct.pack("16sh14x", b"lo", up))


def run(command):
    """Runs the command and returns its exit status. Reaps whatever else ends meanwhile."""
    child = os.spawnvp(os.P_NOWAIT, command[0], command)
    while True:
        pid, status = os.wait()
        if pid == child:
            code = os.waitstatus_to_exitcode(status)
            return code if code >= 0 else 128 - code


def run_on_display(command):
    sys.path.insert(0, str(ROOT / "script/lib"))
    from desktop.display import NoDisplay, VirtualDisplay
    try:
        display = VirtualDisplay()
    except NoDisplay as reason:
        print(reason)
        return WITHOUT_DISPLAY
    with display:
        os.environ.update(display.environment)
        return run(command)


def inside(folder, *command):
    """Runs the command in the new namespaces or, if they are not allowed, without them."""
    if os.getpid() == 1:
        take_the_place_of_tmp(pathlib.Path(folder))
        bring_loopback_up()
    if command[0] == "--display":
        return run(command[1:]) if sys.platform == "darwin" else run_on_display(command[1:])
    return run(command)


def main(*command):
    build = ROOT / "build"
    build.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="apart-", dir=build) as folder:
        return subprocess.run([*prefix(), sys.executable, __file__, "--inside", folder, *command]).returncode


if __name__ == "__main__":
    sys.exit(inside(*sys.argv[2:]) if sys.argv[1] == "--inside" else main(*sys.argv[1:]))
