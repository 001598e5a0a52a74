"""Runs a command apart from the machine's own processes, memory, mounts, network and displays.

Tests start, find and signal processes by name; apart, they meet only their own, and whatever they
leave behind ends with them. Where this is not allowed they run among the machine's processes.

Run as a program it is what stands between the machine and the command.
"""

import contextlib
import fcntl
import functools
import os
import pathlib
import socket
import struct
import subprocess
import sys

from project import ROOT

NAMESPACES = ["--mount", "--pid", "--ipc", "--net", "--fork", "--kill-child", "--mount-proc"]
AS_ROOT = ["unshare", *NAMESPACES]
AS_USER = ["unshare", "--user", "--map-current-user", "--keep-caps", *NAMESPACES]

WITHOUT_DISPLAY = 77  # the exit status where no display could be had; the output is the reason


@functools.lru_cache(maxsize=None)
def _prefix():
    for prefix in (AS_ROOT, AS_USER):
        with contextlib.suppress(OSError, subprocess.CalledProcessError):
            subprocess.run([*prefix, "true"], check=True, stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            return prefix
    print("note: not allowed to run apart from this machine's processes, so among them")
    return []


def apart(command, *, folder, display):
    """The command, wrapped so that it runs apart, with a display of its own where it needs one. The
    folder, an empty one, takes the place of /tmp meanwhile. A Mac has one display for all."""
    own_display = display and sys.platform != "darwin"
    return [*_prefix(), sys.executable, __file__, str(folder),
            "display" if own_display else "none", *command]


def _mount(source, target):
    subprocess.run(["mount", "--rbind", str(source), str(target)], check=True)


def _take_the_place_of_tmp(folder):
    """A display's number is taken in /tmp. The project stays where it is, also below /tmp."""
    place = pathlib.Path("/tmp")
    if ROOT.is_relative_to(place):
        inside = folder / ROOT.relative_to(place)
        inside.mkdir(parents=True)
        _mount(ROOT, inside)
    _mount(folder, place)


def _bring_loopback_up():
    up, set_flags = 0x1, 0x8914  # IFF_UP, SIOCSIFFLAGS
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, set_flags, struct.pack("16sh14x", b"lo", up))


def _run(command):
    """Runs the command, reaps whatever else ends meanwhile, and gives its exit status."""
    child = os.spawnvp(os.P_NOWAIT, command[0], command)
    while True:
        pid, status = os.wait()
        if pid == child:
            code = os.waitstatus_to_exitcode(status)
            return code if code >= 0 else 128 - code


def _main(folder, display, *command):
    if os.getpid() == 1:
        _take_the_place_of_tmp(pathlib.Path(folder))
        _bring_loopback_up()
    if display == "none":
        return _run(command)

    sys.path.insert(0, str(ROOT / "script" / "lib"))
    from desktop.display import NoDisplay, VirtualDisplay
    try:
        own = VirtualDisplay()
    except NoDisplay as reason:
        print(reason)
        return WITHOUT_DISPLAY
    with own:
        os.environ.update(own.environment)
        return _run(command)


if __name__ == "__main__":
    sys.exit(_main(*sys.argv[1:]))
