"""The one table: for the terminal, and for docs/performance.md."""

HEADINGS = ["what", "ours", "peers", "floor", "ratio", "spread", "aim", "met"]
VERDICTS = {True: "yes", False: "no", None: "?"}


def number(value):
    """Three digits that matter: 0.0123, 1.23, 12.3, 123, 12,300."""
    if value is None:
        return "–"
    if abs(value) >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}"


def _quantity(value, unit):
    return "–" if value is None else f"{number(value)} {unit}".strip()


def _peers(row):
    there = [f"{name} {number(value)}" for name, value in
             sorted(row["peers"].items(), key=lambda peer: peer[1])]
    absent = [f"{name}: {reason}" for name, reason in row["missing"].items()]
    return ", ".join(there + absent) or "–"


def cells(row):
    spread = row["spread"]
    return [row["what"], _quantity(row["ours"], row["unit"]), _peers(row),
            _quantity(row["floor"], row["unit"]), number(row["ratio"]),
            "–" if spread is None else f"± {100 * spread:.0f} %", row["aim"] or "–",
            ", ".join(VERDICTS[met] for met in row["met"]) or "–"]


def as_text(rows):
    lines = [HEADINGS] + [cells(row) for row in rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADINGS))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip()
                     for line in lines)


def as_markdown(rows):
    lines = [HEADINGS, ["---"] * len(HEADINGS)] + [cells(row) for row in rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


BEGIN, END = "<!-- the table, written by script/bench -->", "<!-- the end of the table -->"


def put_into(document, table):
    """The document with the table between its two marks."""
    before, rest = document.split(BEGIN)
    _, after = rest.split(END)
    return f"{before}{BEGIN}\n\n{table}\n\n{END}{after}"
