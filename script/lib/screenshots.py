"""Takes the pictures of script/screenshots, each language apart from the machine."""

import pathlib
import subprocess
import sys

from apart import apart
from execution import scratch_folder
from project import ROOT

PICTURES = ROOT / "docs" / "screenshots"
TAKER = pathlib.Path(__file__).with_name("picture_taker.py")


def all_languages():
    return sorted(path.stem for path in (ROOT / "resources").glob("*.lproj") if path.stem != "Base")


def main(*languages):
    for language in languages or all_languages():
        folder = PICTURES / language
        folder.mkdir(parents=True, exist_ok=True)
        print(folder.relative_to(ROOT), flush=True)
        with scratch_folder() as scratch:
            subprocess.run(apart([sys.executable, "-B", str(TAKER), language, str(folder)],
                                 folder=scratch, display=True),
                           check=True, stdin=subprocess.DEVNULL)


main(*sys.argv[1:])
