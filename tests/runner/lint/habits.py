"""The source keeps the habits that .clang-tidy asks for.

A file is looked at again only after it, a header of ours that it reaches, its compile command or
the lists of habits have changed.
"""

import hashlib
import json
import pathlib
import subprocess

from lint.arrows import includes
from lint.tool import check_each, check_with
from project import BUILD, ROOT, build_folder, configure
from report import PASSED, Result

LISTS = [ROOT / ".clang-tidy", ROOT / "tests" / ".clang-tidy"]
PRESET = "lint"
COMMANDS = build_folder(PRESET)
REMEMBERED = COMMANDS / "passed"


def _reached(path, seen):
    """The file and every header of ours that it reaches."""
    if path in seen:
        return
    seen.add(path)
    for name in includes(path):
        for candidate in (ROOT / name, path.parent / name):
            if candidate.is_file():
                _reached(candidate.resolve(), seen)


def _fingerprint(path, command, habits):
    digest = hashlib.sha256(habits)
    digest.update(command.encode())
    reached = set()
    _reached(path, reached)
    for file in sorted(reached):
        digest.update(file.read_bytes())
    return digest.hexdigest()


def _check(path, fingerprint):
    mark = REMEMBERED / fingerprint
    if mark.exists():
        return Result(f"clang-tidy {path.relative_to(ROOT)}", PASSED)
    result = check_with(["clang-tidy", "--quiet", f"-p={COMMANDS}"], path)
    if result.outcome == PASSED:
        mark.touch()
    return result


def _compiled():
    """Our own files that the build compiles, each with its compile command."""
    for entry in json.loads((COMMANDS / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"]).resolve()
        if path.is_relative_to(ROOT) and not path.is_relative_to(BUILD):
            yield path, entry["command"]


def check():
    configure(PRESET)
    REMEMBERED.mkdir(exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE).stdout
    habits = version + b"".join(path.read_bytes() for path in LISTS)
    fingerprints = {path: _fingerprint(path, command, habits) for path, command in _compiled()}
    return check_each(sorted(fingerprints), lambda path: _check(path, fingerprints[path]))
