"""Takes the figures and writes them to a file as JSON: measure.py FILE [GROUP...]

Run apart from the machine, with a display.
"""

import json
import os
import pathlib
import platform
import sys
import tempfile
import time

import crowds
import launches
import sizes
import small
import starts
from figures import Unavailable, failed_row
from desktop.processes import adopt_orphans, end_descendants

CURVES = {}


def _growth(_):
    CURVES.update(small.curves())
    return small.growths(CURVES)


# Every group's figures, given a home for the programs.
GROUPS = {
    "start": [starts.warm],
    "cold": [starts.cold],
    "processes": [lambda home, count=count: crowds.among(count, home) for count in (100, 1000, 5000)],
    "links": [lambda _: small.links()],
    "lists": [lambda _: small.property_lists()],
    "found": [launches.found_in_an_image, launches.found_among_many],
    "press": [launches.presses],
    "size": [lambda _: sizes.sizes()],
    "growth": [_growth],
}


def rows_of(group, home):
    """The rows of a group; what cannot be measured is said in a row."""
    rows = []
    for figures in GROUPS[group]:
        try:
            rows += [figure.row() for figure in figures(home)]
        except (Unavailable, OSError) as reason:
            rows.append(failed_row(group, str(reason)))
        except Exception as error:
            rows.append(failed_row(group, f"{type(error).__name__}: {error}"))
    return rows


def machine():
    model = [line.split(":")[1].strip() for line in open("/proc/cpuinfo", encoding="utf-8")
             if line.startswith("model name")]
    return {"processor": f"{len(model)} × {model[0] if model else platform.machine()}",
            "kernel": platform.release(), "date": time.strftime("%Y-%m-%d"),
            "load": os.getloadavg()[0]}


def main(file, *groups):
    adopt_orphans()
    result = {"machine": machine(), "rows": []}
    with tempfile.TemporaryDirectory() as folder:
        home = starts.home_without_effects(pathlib.Path(folder))
        for group in groups or GROUPS:
            begun = time.monotonic()
            result["rows"] += rows_of(group, home)
            print(f"{group}: {time.monotonic() - begun:.0f} s", flush=True)
            end_descendants()
    result["growth"] = CURVES
    pathlib.Path(file).write_text(json.dumps(result, indent=1, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
