"""Where the project lies, which files are its own, and how its targets are built."""

import pathlib
import platform
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
PRESET = "macos" if platform.system() == "Darwin" else "linux"


def sources(*patterns):
    """The project's own files that match one of the patterns, sorted; nothing that was built."""
    found = {path for pattern in patterns for path in ROOT.glob(pattern)}
    return sorted(path for path in found
                  if path.is_file() and not path.relative_to(ROOT).parts[0].startswith("build"))


def cxx_sources():
    return sources("**/*.h", "**/*.cpp", "**/*.mm")


def run_quietly(*command):
    """Runs a command; its output is seen only where it fails, as the error's text."""
    done = subprocess.run(command, cwd=ROOT, text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(command)} failed:\n{done.stdout}")
    return done.stdout


def configure():
    if not (BUILD / "build.ninja").exists():
        run_quietly("cmake", "--preset", PRESET)


def build(*targets):
    """Brings targets up to date; nothing where none is named."""
    if not targets:
        return
    configure()
    run_quietly("cmake", "--build", "--preset", PRESET, "--target", *targets)
