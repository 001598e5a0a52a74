"""What the mac-cross preset builds, and where it is."""

import functools
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "mac-cross"
BUNDLE = BUILD / "VorxLauncher.app"
CONTENTS = BUNDLE / "Contents"
RESOURCES = CONTENTS / "Resources"
PROGRAM = CONTENTS / "MacOS" / "VorxLauncher"
VIEWER = RESOURCES / "bin" / "vexlink"
TESTS = BUILD / "tests"
WINDOW_TESTS = TESTS / "appkit-window-tests.app" / "Contents"
TEST_PROGRAMS = [TESTS / "unit-tests", TESTS / "contract-tests",
                 WINDOW_TESTS / "MacOS" / "appkit-window-tests"]

ARCHITECTURES = ["arm64", "x86_64"]


def output_of(*command):
    """What a command prints on both streams. If the command fails, an AssertionError shows it."""
    done = subprocess.run([str(part) for part in command], cwd=ROOT, text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)
    assert done.returncode == 0, f"{command[0]} ended with {done.returncode}:\n{done.stdout}"
    return done.stdout


@functools.cache
def build():
    """Brings everything up to date, once in a run of the tests."""
    output_of("cmake", "--preset", "mac-cross")
    output_of("cmake", "--build", "--preset", "mac-cross")
