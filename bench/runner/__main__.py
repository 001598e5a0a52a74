"""Builds what is measured, measures it apart from the machine, and shows the table; see
script/bench."""

import json
import pathlib
import subprocess
import sys
import tempfile

import plot
import table
from project import APART, BUILD, ROOT, build

DOCUMENT = ROOT / "docs/performance.md"
NUMBERS = ROOT / "docs/performance.json"
PICTURE = ROOT / "docs/performance-growth.svg"


def measured(groups):
    with tempfile.TemporaryDirectory(prefix="bench-", dir=BUILD) as place:
        folder = pathlib.Path(place)
        results = folder / "results.json"
        done = subprocess.run([APART, "--display", sys.executable, "-B", ROOT / "bench/runner/measure.py",
                               results, *groups], stdin=subprocess.DEVNULL)
        if not results.exists():
            raise SystemExit(f"script/bench: nothing was measured (status {done.returncode})")
        return json.loads(results.read_text())


def write(result):
    machine = result["machine"]
    taken = (f"Taken on {machine['date']} on {machine['processor']}, Linux {machine['kernel']}, with a "
             f"load of {machine['load']:.1f} from elsewhere.")
    NUMBERS.write_text(json.dumps(result, indent=1, ensure_ascii=False) + "\n")
    DOCUMENT.write_text(table.put_into(DOCUMENT.read_text(),
                                       f"{taken}\n\n{table.as_markdown(result['rows'])}"))
    PICTURE.write_text(plot.growth(list(result["growth"].items())))


def main(groups):
    build("application", "bench-small", "bench-stage")
    result = measured(groups)
    print(table.as_text(result["rows"]))
    if not groups:
        write(result)
        print(f"Written to {DOCUMENT.relative_to(ROOT)} and {NUMBERS.relative_to(ROOT)}")


main(sys.argv[1:])
