"""The session of script/run: runs the launcher from a downloaded image and leaves nothing behind."""

import contextlib
import os
import pathlib
import signal
import subprocess
import sys
import tempfile

from desktop.attached_image import NotAllowed, attached
from desktop.display import VirtualDisplay
from desktop.download import download, served
from desktop.processes import adopt_orphans, end_descendants
from desktop.waiting import Failure, wait_until
from desktop.window import windows_of

BUILD = pathlib.Path(__file__).resolve().parents[2] / "build"
MAC = sys.platform == "darwin"
IMAGE = BUILD / ("VorxLauncher.dmg" if MAC else "VorxLauncher.img")
PROGRAM = "VorxLauncher.app/" + ("Contents/MacOS/VorxLauncher" if MAC else "VorxLauncher")
SCREEN_READER = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)


def say(text):
    print(text, flush=True)


def unwind_on_signals():
    """Turns the signals that end a program into an exception, so that everything is cleaned up.
    Ignores further signals."""
    def unwind(number, _):
        for each in SIGNALS:
            signal.signal(each, signal.SIG_IGN)
        raise SystemExit(128 + number)

    for each in SIGNALS:
        signal.signal(each, unwind)


def program_to_start(stack):
    """Returns a program and whether it is in an image: the one in the downloaded image's volume or, if
    images cannot be attached, the one in the build folder."""
    address = stack.enter_context(served(IMAGE))
    folder = stack.enter_context(tempfile.TemporaryDirectory(prefix="download-", dir=BUILD))
    file = download(address, folder)
    say(f"Downloaded {address}")
    try:
        volume = pathlib.Path(stack.enter_context(attached(file)))
    except NotAllowed as reason:
        say(f"The image cannot be attached here ({reason}): starting from the build folder")
        return BUILD / PROGRAM, False
    say(f"Mounted at {volume}")
    return volume / PROGRAM, True


@contextlib.contextmanager
def started(program):
    """The running launcher, which is asked to quit when the block ends."""
    launcher = subprocess.Popen([str(program)], stdin=subprocess.DEVNULL, start_new_session=True)
    try:
        yield launcher
    finally:
        launcher.terminate()
        with contextlib.suppress(subprocess.TimeoutExpired):
            launcher.wait(timeout=5)


def take_picture(launcher, in_image, file):
    """Takes a picture once the window is shown and has found its location, if there is one."""
    from desktop.screen_reader import FIELD, program  # needs the bus, which runs only by now

    def ready():
        if launcher.poll() is not None:
            raise Failure("the launcher has ended before its window was ready")
        known = program(launcher.pid)
        location = known and windows_of(launcher.pid) and known.find(FIELD)
        return location and (not in_image or location.text)

    location = wait_until(ready, "the location has been found")
    if in_image:
        say(f"Found {location}")
    windows_of(launcher.pid)[0].save_picture(file)
    say(f"Screenshot: {file}")


def run(screenshot):
    with contextlib.ExitStack() as stack:
        program, in_image = program_to_start(stack)
        if not MAC:
            adopt_orphans()
            stack.callback(end_descendants)
        on_virtual_display = screenshot is not None or not (MAC or "DISPLAY" in os.environ)
        if on_virtual_display:
            os.environ.update(stack.enter_context(VirtualDisplay()).environment, **SCREEN_READER)
        launcher = stack.enter_context(started(program))
        if on_virtual_display:
            take_picture(launcher, in_image, screenshot or BUILD / "screenshot.png")
        if screenshot is None:
            say("Ctrl-C or closing the window ends it")
            if launcher.wait() != 0:
                raise Failure(f"the launcher has ended with status {launcher.returncode}")


def main(arguments):
    unwind_on_signals()
    try:
        run(pathlib.Path(arguments[1]) if arguments else None)
    except (Failure, OSError, subprocess.CalledProcessError) as error:
        print(f"script/run: {error}", file=sys.stderr)
        return 1
    return 0


sys.exit(main(sys.argv[1:]))
