"""Measures what the unit and contract tests reach: coverage.py [FILE...]"""

import shutil
import subprocess
import sys

from execution import execute, execute_apart, scratch_folder
from project import ROOT, build, build_folder, sources

PRESET = "coverage"
PROGRAMS = ("unit-tests", "contract-tests")
LOGIC = ("base", "net", "process", "discovery", "controller")


def _program(name):
    return str(build_folder(PRESET) / "tests" / name)


def _run_tests(profiles):
    """Every process, also one that a test starts to see it end, leaves a file of its own."""
    environment = {"LLVM_PROFILE_FILE": f"{profiles}/%m-%p.profraw"}
    print("running the tests", flush=True)
    execute([_program("unit-tests")], environment=environment)
    with scratch_folder() as folder:
        execute_apart([_program("contract-tests")], folder=folder, display=False,
                      environment=environment)


def _measured():
    """The file with the counts of all runs together."""
    profiles = build_folder(PRESET) / "profiles"
    shutil.rmtree(profiles, ignore_errors=True)
    profiles.mkdir()
    _run_tests(profiles)
    merged = build_folder(PRESET) / "measured.profdata"
    subprocess.run(["llvm-profdata", "merge", "-o", str(merged),
                    *map(str, profiles.glob("*.profraw"))], check=True)
    return merged


def main(*files):
    build(*PROGRAMS, preset=PRESET)
    verb = ["show", "--show-branches=count"] if files else ["report", "--show-region-summary=0"]
    logic = [str(path) for room in LOGIC for path in sources(f"{room}/*.cpp", f"{room}/linux/**/*.cpp")]
    subprocess.run(["llvm-cov", *verb, f"--instr-profile={_measured()}", _program(PROGRAMS[0]),
                    f"--object={_program(PROGRAMS[1])}",
                    *([str(ROOT / file) for file in files] or logic)], check=True)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
