"""The doubles that stand in for programs that are not ours, and what they record."""

import contextlib
import os
import pathlib
import shutil
import socket
import subprocess

from desktop.waiting import wait_until

BUILT = pathlib.Path(__file__).resolve().parents[2] / "build/tests/e2e"
DOUBLE = BUILT / "e2e-double"
SLOW_RESOLVER = BUILT / "libslow-resolver.so"
KILL_RECORDER = BUILT / "libkill-recorder.so"
THREAD_REFUSER = BUILT / "libthread-refuser.so"


class Record:
    """What has happened to the doubles: pairs of process and event, in order."""

    def __init__(self, file):
        self.file = file

    def events(self):
        if not self.file.exists():
            return []
        lines = [line.split() for line in self.file.read_text().splitlines()]
        return [(int(process), event) for process, event in lines]

    def wait_for(self, process, event):
        wait_until(lambda: (process, event) in self.events(), f"{process} records {event}")

    def wait_for_event(self, event):
        """The first process that records an event."""
        def those():
            return [process for process, recorded in self.events() if recorded == event]

        return wait_until(those, f"somebody records {event}")[0]


class Gate:
    """A FIFO at which a double waits until it is opened."""

    def __init__(self, file):
        self.file = file
        os.mkfifo(file)

    def open(self):
        """Waits until a double waits there, and lets it go on."""
        def somebody_waits():
            with contextlib.suppress(OSError):
                os.close(os.open(self.file, os.O_WRONLY | os.O_NONBLOCK))
                return True

        wait_until(somebody_waits, f"somebody waits at {self.file}")


def running(name):
    """The processes with a command name, in ascending order, without zombies."""
    found = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            process, rest = stat.read_text(errors="replace").split(" (", 1)
        except (FileNotFoundError, ProcessLookupError):
            continue
        command, state = rest.rsplit(") ", 1)
        if command == name and not state.startswith("Z"):
            found.append(int(process))
    return sorted(found)


def children_of(process):
    """The children of a process, zombies included."""
    threads = pathlib.Path(f"/proc/{process}/task").glob("*/children")
    return [int(child) for children in threads for child in children.read_text().split()]


def command_of(process):
    """A process's name and arguments, as the system tells them."""
    folder = pathlib.Path(f"/proc/{process}")
    with contextlib.suppress(FileNotFoundError, ProcessLookupError):
        return (folder / "comm").read_text().strip(), (folder / "cmdline").read_text().split("\0")


def arguments_of(process):
    """The arguments that a process was started with, without its own name."""
    return pathlib.Path(f"/proc/{process}/cmdline").read_text().split("\0")[1:-1]


def address_of(host):
    """The first address that the system's resolver gives."""
    return socket.getaddrinfo(host, None, type=socket.SOCK_STREAM)[0][4][0]


def start(name, record, folder):
    """Starts a double under a name. Returns once it runs and listens."""
    program = folder / name
    if not program.exists():
        shutil.copy(DOUBLE, program)
    child = subprocess.Popen([program], stdin=subprocess.DEVNULL,
                             env={**os.environ, "RECORD": str(record.file)})
    record.wait_for(child.pid, "started")
    return child
