"""Where the project lies, and how its targets are built."""

import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
APART = ROOT / "tests/runner/apart.py"


def build(*targets):
    subprocess.run(["cmake", "--preset", "linux"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "linux", "--target", *targets], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)
