"""Figures, their aims, and the one table of them."""

import dataclasses
import statistics

OURS, FLOOR = "ours", "floor"
BEGIN, END = "<!-- the table, written by script/bench -->", "<!-- the end of the table -->"


class Unavailable(Exception):
    """Something cannot be measured here; the text is the reason."""


@dataclasses.dataclass
class Figure:
    """Values by name, the n-th value from the n-th round; the aim, as a text and a check; and the reasons
    why a peer has no values."""

    what: str
    unit: str
    values: dict
    aims: list = ()
    missing: dict = dataclasses.field(default_factory=dict)

    def typical(self, name):
        return statistics.median(self.values[name])

    def ratios(self):
        """Our value as a multiple of the floor's, round by round."""
        return [mine / its for mine, its in zip(self.values[OURS], self.values.get(FLOOR, []))]


def attempted(what, take):
    """The figures of take(). If it fails, one figure with the reason."""
    try:
        return take()
    except Exception as reason:
        return [Figure(what, "", {}, (), {OURS: f"{type(reason).__name__}: {reason}"})]


def at_most(factor):
    return f"at most {factor} × floor", lambda figure: statistics.median(figure.ratios()) <= factor


def beside(name, factor):
    return (f"at most {factor} × {name}",
            lambda figure: figure.typical(OURS) <= factor * figure.typical(name))


def at_most_above(amount, unit):
    return (f"at most {amount} {unit} above the floor",
            lambda figure: figure.typical(OURS) <= figure.typical(FLOOR) + amount)


def under(limit, unit):
    return f"under {limit} {unit}", lambda figure: figure.typical(OURS) < limit


def ahead_of(*names, factor=1):
    return (f"{factor} × ahead of {', '.join(names)}".removeprefix("1 × "),
            lambda figure: all(factor * figure.typical(OURS) <= figure.typical(name) for name in names))


def number(value):
    """Three significant digits: 0.0123, 1.23, 12.3, 123, 12,300."""
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def verdict(aim, figure):
    try:
        return "yes" if aim[1](figure) else "no"
    except (KeyError, statistics.StatisticsError):
        return "?"  # the floor or the peers are missing


def spread(values):
    """Half the interquartile range of the rounds, as a share of the median."""
    if len(values) < 2:
        return "–"
    low, middle, high = statistics.quantiles(values, n=4, method="inclusive")
    return f"± {100 * (high - low) / 2 / middle:.0f} %"


def cells(figure):
    if not figure.values.get(OURS):
        return [figure.what, "–", figure.missing.get(OURS, "nothing could be measured"), *["–"] * 5]
    peers = sorted((figure.typical(name), name) for name in figure.values if name not in (OURS, FLOOR))
    told = [f"{name} {number(value)}" for value, name in peers]
    told += [f"{name}: {reason}" for name, reason in figure.missing.items()]
    ratios = figure.ratios()
    return [figure.what, f"{number(figure.typical(OURS))} {figure.unit}", ", ".join(told) or "–",
            f"{number(figure.typical(FLOOR))} {figure.unit}" if ratios else "–",
            f"{statistics.median(ratios):.3g}" if ratios else "–", spread(ratios or figure.values[OURS]),
            "; ".join(text for text, _ in figure.aims) or "–",
            ", ".join(verdict(aim, figure) for aim in figure.aims) or "–"]


def markdown(figures):
    rows = [["what", "ours", "peers", "floor", "ratio", "spread", "aim", "met"], ["---"] * 8,
            *map(cells, figures)]
    return "\n".join(f"| {' | '.join(row)} |" for row in rows)


def put_into(document, text):
    """Puts a text between the document's two marks."""
    before, rest = document.split(BEGIN)
    return f"{before}{BEGIN}\n\n{text}\n\n{END}{rest.split(END)[1]}"
