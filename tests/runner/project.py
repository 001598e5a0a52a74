"""Where the project lies, which files are its own, and how its targets are built."""

import pathlib
import platform
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
PRESET = "mac" if platform.system() == "Darwin" else "linux"


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


def build_folder(preset=PRESET):
    """Where a preset's build lies."""
    return BUILD if preset == PRESET else BUILD / preset


def configure(preset=PRESET):
    """Brings the description of a preset's build up to date."""
    made = build_folder(preset) / "build.ninja"
    if not made.exists() or made.stat().st_mtime < (ROOT / "CMakePresets.json").stat().st_mtime:
        run_quietly("cmake", "--preset", preset)
    else:
        run_quietly("cmake", "--build", "--preset", preset, "--target", "build.ninja")


def build(*targets, preset=PRESET):
    """Brings targets up to date; nothing where none is named."""
    if not targets:
        return
    configure(preset)
    run_quietly("cmake", "--build", "--preset", preset, "--target", *targets)
