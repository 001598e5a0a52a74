"""Takes the figures of the named groups, or of all groups, and shows the table; see script/bench. Needs
a display, and runs apart from the machine's processes."""

import os
import pathlib
import platform
import sys
import tempfile
import time

import launches
import small
import starts
import table
from desktop.processes import adopt_orphans, end_descendants
from windows import APPLICATION, PROGRAM

DOCUMENT = pathlib.Path(__file__).resolve().parents[2] / "docs/performance.md"


def sizes():
    carried = [file for file in APPLICATION.rglob("*") if file.is_file() and file.name != "vexlink"]
    files = {"size of the program": [APPLICATION / PROGRAM], "size of the application without the viewer": carried,
             "size of the image": [starts.IMAGE]}
    return [table.Figure(what, "MB", {table.OURS: [sum(file.lstat().st_size for file in those) / 1e6]},
                         [table.under(35, "MB")] if those == [starts.IMAGE] else [])
            for what, those in files.items()]


# For each group, the functions that take its figures in the given home folder.
GROUPS = {
    "start": [starts.warm],
    "image": [starts.from_image],
    "found": [launches.found],
    "press": [launches.presses],
    "processes": [lambda home, count=count: small.among(count, home) for count in (100, 1000, 5000)],
    "links": [lambda _: small.links()],
    "lists": [lambda _: small.property_lists()],
    "size": [lambda _: sizes()],
}


def machine():
    lines = pathlib.Path("/proc/cpuinfo").read_text().splitlines()
    models = [line.split(":")[1].strip() for line in lines if line.startswith("model name")]
    return (f"Taken on {time.strftime('%Y-%m-%d')} on {len(models)} × {(models or [platform.machine()])[0]}, "
            f"Linux {platform.release()}, with a load of {os.getloadavg()[0]:.1f} from elsewhere.")


def main(*groups):
    adopt_orphans()
    taken, figures = machine(), []
    with tempfile.TemporaryDirectory() as folder:
        home = starts.home_without_effects(pathlib.Path(folder))
        for group in groups or GROUPS:
            print(f"{group} …", file=sys.stderr, flush=True)
            for take in GROUPS[group]:
                figures += table.attempted(group, lambda: take(home))
                end_descendants()
    text = f"{taken}\n\n{table.markdown(figures)}"
    print(text)
    if not groups:
        DOCUMENT.write_text(table.put_into(DOCUMENT.read_text(), text))


if __name__ == "__main__":
    main(*sys.argv[1:])
