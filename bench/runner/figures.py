"""Figures: what was measured of us, of the floor and of the peers, and what is aimed at."""

import dataclasses
import statistics

OURS, FLOOR = "ours", "floor"
RATIO = "ours to floor"


class Unavailable(Exception):
    """Something cannot be measured here; the text is the reason."""


@dataclasses.dataclass
class Aim:
    """What is aimed at: a text, and a test that is given the typical values by name, the ratio of
    ours to the floor among them, and answers whether the aim is met."""
    text: str
    test: object


def at_most(factor):
    return Aim(f"at most {factor} × floor", lambda typical: typical[RATIO] <= factor)


def at_most_above(amount, unit):
    return Aim(f"at most {amount} {unit} above the floor",
               lambda typical: typical[OURS] <= typical[FLOOR] + amount)


def under(limit, unit):
    return Aim(f"under {limit} {unit}", lambda typical: typical[OURS] < limit)


def ahead_of(*names, factor=1):
    """Ahead of the peers named, or of all where none is."""
    def test(typical):
        peers = names or [name for name in typical if name not in (OURS, FLOOR, RATIO)]
        return all(factor * typical[OURS] < typical[peer] for peer in peers if peer in typical)

    times = "" if factor == 1 else f"{factor} × "
    return Aim(f"{times}ahead of {' and '.join(names) or 'all'}", test)


def linear():
    """Of a figure that is the power of the size with which the time grows."""
    return Aim("linear", lambda typical: typical[OURS] <= 1.15)


@dataclasses.dataclass
class Figure:
    """Values by name, the n-th of each from the n-th round; and why a peer has none."""
    what: str
    unit: str
    values: dict
    missing: dict = dataclasses.field(default_factory=dict)
    aims: list = dataclasses.field(default_factory=list)

    def row(self):
        typical = {name: statistics.median(values) for name, values in self.values.items() if values}
        if OURS not in typical:
            return failed_row(self.what, "nothing could be measured")
        ratio, spread = _ratio(self.values[OURS], self.values.get(FLOOR, []))
        peers = {name: value for name, value in typical.items() if name not in (OURS, FLOOR)}
        return {"what": self.what, "unit": self.unit, "ours": typical[OURS],
                "floor": typical.get(FLOOR), "peers": peers, "missing": self.missing,
                "ratio": ratio, "spread": spread,
                "aim": "; ".join(aim.text for aim in self.aims),
                "met": [_is_met(aim, typical, ratio) for aim in self.aims]}


def failed_row(what, reason):
    """The row of a figure that could not be taken."""
    return {"what": what, "unit": "", "ours": None, "floor": None, "peers": {},
            "missing": {OURS: reason}, "ratio": None, "spread": None, "aim": "", "met": []}


def _is_met(aim, typical, ratio):
    if ratio is not None:
        typical = {**typical, RATIO: ratio}
    try:
        return bool(aim.test(typical))
    except KeyError:
        return None  # what it is held against is missing


def _ratio(ours, floor):
    """How many times the floor ours is, round by round: the median, and half of the range in which
    the middle half of the rounds lies, as a share of it. Without a floor, ours itself spreads."""
    pairs = [mine / its for mine, its in zip(ours, floor) if its > 0]
    values = pairs or ours
    middle = statistics.median(values)
    spread = None
    if len(values) > 1 and middle > 0:
        low, _, high = statistics.quantiles(values, n=4, method="inclusive")
        spread = (high - low) / 2 / middle
    return (middle if pairs else None), spread
