"""Makes each mutant in a copy of the project and checks whether the tests notice it:
run.py [NAME...], where a name is part of a file's path or of a rule."""

import concurrent.futures
import os
import pathlib
import queue
import re
import shutil
import subprocess
import sys

from table import BrokenTable, read

ROOT = pathlib.Path(__file__).resolve().parents[2]
COPIES = ROOT / "build" / "mutants"

# The quick ones come first. A test program that notices a mutant ends with a status other than 0.
CONTRACT = "contract-tests"
PROGRAMS = ["unit-tests", "diagnostics-tests", CONTRACT]
WINDOW, WINDOW_PROGRAMS = "controller/linux/", ["qt-window-tests"]


def programs_for(mutant):
    return WINDOW_PROGRAMS if mutant.file.startswith(WINDOW) else PROGRAMS


def limit_for(program):
    """Seconds. A mutant that makes the tests hang is noticed, too."""
    return 240 if program == CONTRACT else 30


def filters_for(program, mutant):
    """Which of a program's tests to run, in this order: of the slow ones, those of the mutant's room first."""
    if program != CONTRACT:
        return ["*"]
    room = ROOT / "tests" / "contract" / pathlib.Path(mutant.file).parts[0]
    suites = {suite for path in room.rglob("*Test.cpp")
              for suite in re.findall(r"^TEST(?:_F|_P)?\((\w+),", path.read_text(), re.MULTILINE)}
    return [":".join(f"{suite}.*" for suite in sorted(suites)), "*"]


class Copy:
    """A copy of the project, built without optimization."""

    def __init__(self, number):
        self._root = COPIES / str(number)
        self._build = self._root / "build"

    def prepare(self, programs):
        """Brings the copy up to date, builds the programs, and makes sure that they pass."""
        files = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, text=True,
                               stdout=subprocess.PIPE).stdout.split("\0")
        for name in filter(None, files):
            self._take(name)
        subprocess.run(["cmake", "-S", self._root, "-B", self._build, "-G", "Ninja",
                        "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_BUILD_TYPE=None",
                        "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"], check=True, stdout=subprocess.DEVNULL)
        for program in programs:
            if not self._compiles(program) or not self._passes(program, "*"):
                raise BrokenTable(f"{program} does not pass without a mutant")

    def _take(self, name):
        source, target = ROOT / name, self._root / name
        if source.is_file() and not (target.exists() and target.read_bytes() == source.read_bytes()):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)

    def _compiles(self, program):
        done = subprocess.run(["cmake", "--build", self._build, "--target", program],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.output = done.stdout
        return done.returncode == 0

    def _passes(self, program, tests):
        command = [self._build / "tests" / program, "--gtest_brief=1", "--gtest_fail_fast",
                   f"--gtest_filter={tests}"]
        if program == CONTRACT:
            command.insert(0, self._root / "tests" / "runner" / "apart.py")
        try:
            return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=limit_for(program)).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def notices(self, mutant):
        """The test program that notices a mutant; None if none does."""
        file = self._root / mutant.file
        before = file.read_text(encoding="utf-8")
        file.write_text(mutant.applied(before), encoding="utf-8")
        try:
            return next((program for program in programs_for(mutant) if self._fails(program, mutant)), None)
        finally:
            file.write_text(before, encoding="utf-8")

    def _fails(self, program, mutant):
        if not self._compiles(program):
            raise BrokenTable(f"{mutant.file}: does not compile: {mutant.rule}\n{self.output[-2000:]}")
        return not all(self._passes(program, tests) for tests in filters_for(program, mutant))


def chosen(names):
    mutants = [mutant for path in sorted(pathlib.Path(__file__).parent.glob("*.txt"))
               for mutant in read(path)]
    for mutant in mutants:
        mutant.applied((ROOT / mutant.file).read_text(encoding="utf-8"))
    found = [mutant for mutant in mutants
             if not names or any(name in f"{mutant.file} {mutant.rule}" for name in names)]
    if not found:
        raise BrokenTable(f"nothing is named {' or '.join(names)}")
    return found


def judged(mutants):
    """Yields each mutant with the program that notices it, as soon as it is known."""
    copies = queue.Queue()

    def judge(mutant):
        copy = copies.get()
        try:
            return mutant, copy.notices(mutant)
        finally:
            copies.put(copy)

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        made = [Copy(number) for number in range(os.cpu_count())]
        programs = list(dict.fromkeys(sum(map(programs_for, mutants), [])))
        for _ in pool.map(lambda copy: copy.prepare(programs), made):
            pass
        for copy in made:
            copies.put(copy)
        yield from pool.map(judge, mutants)


def main(names):
    noticed = survive = equivalent = 0
    for mutant, program in judged(chosen(names)):
        about = f"{mutant.file}: {mutant.rule}"
        if program is not None:
            if mutant.equivalent:
                raise BrokenTable(f"{about} is marked as equivalent, but {program} notices it")
            noticed += 1
            print(f"noticed by {program}: {about}", flush=True)
        elif mutant.equivalent:
            equivalent += 1
            print(f"equivalent: {about} ({mutant.equivalent})", flush=True)
        else:
            survive += 1
            print(f"SURVIVES: {about}\n    {mutant.old}\n"
                  f"    -> {' '.join(mutant.new).strip() or 'gone'}", flush=True)
    print(f"{noticed} noticed, {survive} survive, {equivalent} equivalent")
    return 0 if survive == 0 and noticed > 0 else 1


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except BrokenTable as error:
        sys.exit(f"script/mutants: {error}")
