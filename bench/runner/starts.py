"""What a person waits for first: the start, warm and cold, the memory that it takes, and the end."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile

from figures import FLOOR, OURS, Figure, Unavailable, ahead_of, at_most
from project import ROOT
from desktop.attached_image import NotAllowed, attached
from desktop.processes import end_descendants
from windows import APPLICATION, BARE_WINDOW, PROGRAM, session

PEERS = {
    "zenity": ["zenity", "--forms", "--text=Location", "--add-entry=Address"],
    "yad": ["yad", "--form", "--field=Address"],
    "remote-viewer": ["remote-viewer"],
    "remmina": ["remmina"],
    "tigervnc": ["xtigervncviewer"],
}
WARM_ROUNDS, COLD_ROUNDS = 24, 5
DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")


def home_without_effects(folder):
    """A home in which no peer's window fades in, nor asks for news."""
    settings = folder / ".config/gtk-3.0/settings.ini"
    settings.parent.mkdir(parents=True)
    settings.write_text("[Settings]\ngtk-enable-animations=0\n")
    news = folder / ".config/remmina/remmina.pref"
    news.parent.mkdir(parents=True)
    news.write_text("[remmina_pref]\nperiodic_news_permitted=false\n")
    return folder


class Contest:
    """Programs that take turns, and their values; one that fails drops out with a reason."""

    def __init__(self, programs):
        self._programs = dict(programs)
        self.missing = {}
        for name, command in programs.items():
            if shutil.which(str(command[0])) is None:
                self._drop(name, "not installed")

    def _drop(self, name, reason):
        self.missing[name] = reason
        del self._programs[name]

    def round(self, measure):
        """Lets every program be measured once: measure(name, command)."""
        for name, command in list(self._programs.items()):
            try:
                measure(name, command)
            except (Unavailable, OSError) as reason:
                self._drop(name, str(reason))


def _add(values, name, value):
    values.setdefault(name, []).append(value)


def warm(home):
    contest = Contest({OURS: [APPLICATION / PROGRAM], FLOOR: [BARE_WINDOW], **PEERS})
    start, resident, proportional, end = {}, {}, {}, {}

    def measure(name, command):
        with session(*command, home=home) as running:
            memory = running.memory()
            _add(start, name, 1e3 * (running.painted - running.started))
            _add(resident, name, memory.resident)
            _add(proportional, name, memory.proportional)
            if name in (OURS, FLOOR):
                _add(end, name, 1e3 * running.close())

    contest.round(lambda name, command: _once(command, home))
    for _ in range(WARM_ROUNDS):
        contest.round(measure)
    near, ahead = at_most(1.05), ahead_of("zenity", "remote-viewer", "remmina")
    return [Figure("start to painted, warm", "ms", start, contest.missing, [near, ahead]),
            Figure("memory, resident", "MB", resident, contest.missing, [near]),
            Figure("memory, proportional", "MB", proportional, contest.missing, [near]),
            Figure("quit: close to process gone", "ms", end, {}, [at_most(1.1)])]


def _once(command, home):
    with session(*command, home=home):
        pass


@contextlib.contextmanager
def _image(folder):
    """An image with the application, and beside it the program that is the floor."""
    bundle = folder / "volume" / APPLICATION.name
    shutil.copytree(APPLICATION, bundle)
    shutil.copy(BARE_WINDOW, bundle / "bare-window")
    image = folder / "Launcher.img"
    subprocess.run([ROOT / "packaging/linux/make-image", bundle, image], check=True,
                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    yield image


def _forget_files():
    os.sync()
    try:
        DROP_CACHES.write_text("3\n")
    except OSError as error:
        raise Unavailable(f"the file cache cannot be emptied here ({error.strerror})") from error


def cold(home):
    contest = Contest({OURS: [APPLICATION / PROGRAM], FLOOR: [BARE_WINDOW], **PEERS})
    start = {}

    def measure(name, command):
        inside = {OURS: PROGRAM, FLOOR: "bare-window"}
        with tempfile.TemporaryDirectory() as folder, _image(pathlib.Path(folder)) as image:
            with attached(image) as volume:
                if name in inside:
                    command = [pathlib.Path(volume) / APPLICATION.name / inside[name]]
                _forget_files()
                with session(*command, home=home) as running:
                    _add(start, name, 1e3 * (running.painted - running.started))
                end_descendants()

    try:
        for _ in range(COLD_ROUNDS):
            contest.round(measure)
    except NotAllowed as reason:
        raise Unavailable(f"images cannot be attached here ({reason})") from reason
    return [Figure("start to painted, cold, from a freshly mounted image", "ms", start,
                   contest.missing,
                   [at_most(1.05), ahead_of("zenity", "remote-viewer", "remmina")])]
