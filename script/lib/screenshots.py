"""Takes the pictures of script/screenshots, each language apart from the machine."""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
APART = ROOT / "tests/runner/apart.py"
PICTURES = ROOT / "docs" / "screenshots"
TAKER = pathlib.Path(__file__).with_name("picture_taker.py")


def all_languages():
    return sorted(path.stem for path in (ROOT / "resources").glob("*.lproj") if path.stem != "Base")


def main(*languages):
    for language in languages or all_languages():
        folder = PICTURES / language
        folder.mkdir(parents=True, exist_ok=True)
        print(folder.relative_to(ROOT), flush=True)
        subprocess.run([APART, "--display", sys.executable, "-B", TAKER, language, folder], check=True,
                       stdin=subprocess.DEVNULL)


main(*sys.argv[1:])
