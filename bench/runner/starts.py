"""The start, warm and cold, the memory after it, and the quit."""

import os
import pathlib

from desktop.attached_image import NotAllowed, attached
from desktop.processes import end_descendants
from table import FLOOR, OURS, Figure, Unavailable, ahead_of, at_most, beside
from windows import APPLICATION, BARE_WINDOW, BUILD, PROGRAM, session

IMAGE = BUILD / "VorxLauncher.img"
PEERS = {
    "zenity": ["zenity", "--forms", "--text=Location", "--add-entry=Address"],
    "yad": ["yad", "--form", "--field=Address"],
    "remote-viewer": ["remote-viewer"],
    "remmina": ["remmina"],
    "tigervnc": ["xtigervncviewer"],
}
AIMS = [at_most(1.25), ahead_of("yad", "zenity", "remote-viewer", "remmina", factor=1.5),
        beside("tigervnc", 1.5)]
WARM_ROUNDS, IMAGE_ROUNDS, COLD_ROUNDS = 12, 8, 4
DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")


def home_without_effects(folder):
    """A home folder in which no peer's window fades in or shows news."""
    for file, text in [(".config/gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n"),
                       (".config/remmina/remmina.pref", "[remmina_pref]\nperiodic_news_permitted=false\n")]:
        (folder / file).parent.mkdir(parents=True)
        (folder / file).write_text(text)
    return folder


def turns(programs, rounds, measure):
    """Runs programs in turns. Returns their values by name. A program that fails drops out; returns the
    reasons, too."""
    values, missing = {}, {}
    for _ in range(rounds):
        for name, command in programs.items():
            end_descendants()  # a peer may leave processes behind
            if name in missing:
                continue
            try:
                values.setdefault(name, []).append(measure(command))
            except (Unavailable, OSError) as reason:
                values.pop(name, None)
                missing[name] = str(reason)
    return values, missing


def warm(home):
    def life(command):
        with session(*command, home=home) as (running, painted):
            return 1e3 * (painted - running.started), running.resident_megabytes(), 1e3 * running.close()

    programs = {OURS: [APPLICATION / PROGRAM], FLOOR: [BARE_WINDOW]}
    everyone = {**programs, **PEERS}
    turns(everyone, 1, lambda command: start(command, home))  # fills the caches
    starts, missing = turns(everyone, WARM_ROUNDS, lambda command: start(command, home))
    lives, _ = turns(programs, WARM_ROUNDS, life)
    _, memory, end = ({name: [life[part] for life in each] for name, each in lives.items()}
                      for part in range(3))
    return [Figure("start to painted, warm", "ms", starts, AIMS, missing),
            Figure("memory, resident", "MB", memory, [at_most(1.2)]),
            Figure("quit: close to process gone", "ms", end, [at_most(1.2)])]


def start(command, home):
    with session(*command, home=home) as (running, painted):
        return 1e3 * (painted - running.started)


def start_cold(command, home):
    os.sync()
    try:
        DROP_CACHES.write_text("3\n")
    except OSError as reason:
        raise Unavailable(f"the file cache cannot be emptied here ({reason.strerror})") from reason
    return start(command, home)


def from_image(home):
    try:
        with attached(IMAGE) as volume:
            programs = {OURS: [pathlib.Path(volume) / APPLICATION.name / PROGRAM], FLOOR: [BARE_WINDOW],
                        "build folder": [APPLICATION / PROGRAM]}
            turns(programs, 1, lambda command: start(command, home))
            starts, missing = turns(programs, IMAGE_ROUNDS, lambda command: start(command, home))
            cold, absent = turns({**programs, **PEERS}, COLD_ROUNDS,
                                 lambda command: start_cold(command, home))
    except NotAllowed as reason:
        raise Unavailable(f"images cannot be attached here ({reason})") from reason
    return [Figure("start to painted, warm, from the image", "ms", starts, [at_most(1.25)], missing),
            Figure("start to painted, cold, from the image", "ms", cold, AIMS, absent)]
