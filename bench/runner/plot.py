"""A picture of growth: time against size, both in powers of ten, so that linear is a slope of 45°."""

import math

WIDTH, HEIGHT, MARGIN = 640, 420, 60
COLOURS = ["#2068c8", "#c04020", "#208040"]


def _decades(values):
    return math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))


def growth(curves):
    """An SVG of curves: a name and its points, size and nanoseconds, for each."""
    points = [point for _, curve in curves for point in curve]
    left, right = _decades([size for size, _ in points])
    bottom, top = _decades([time for _, time in points])

    def x(size):
        return MARGIN + (math.log10(size) - left) / (right - left) * (WIDTH - 2 * MARGIN)

    def y(time):
        return HEIGHT - MARGIN - (math.log10(time) - bottom) / (top - bottom) * (HEIGHT - 2 * MARGIN)

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
             f'font-family="sans-serif" font-size="12">',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>']
    for power in range(left, right + 1):
        parts.append(_line(x(10 ** power), y(10 ** bottom), x(10 ** power), y(10 ** top)))
        parts.append(_text(x(10 ** power), HEIGHT - MARGIN + 18, f"{10 ** power:,}", "middle"))
    for power in range(bottom, top + 1):
        parts.append(_line(x(10 ** left), y(10 ** power), x(10 ** right), y(10 ** power)))
        parts.append(_text(MARGIN - 6, y(10 ** power) + 4, _time(power), "end"))
    for (name, curve), colour in zip(curves, COLOURS):
        path = " ".join(f"{x(size):.1f},{y(time):.1f}" for size, time in curve)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>')
        parts += [f'<circle cx="{x(size):.1f}" cy="{y(time):.1f}" r="3" fill="{colour}"/>'
                  for size, time in curve]
    for line, ((name, _), colour) in enumerate(zip(curves, COLOURS)):
        parts.append(_text(MARGIN + 10, MARGIN + 16 + 18 * line, name, "start", colour))
    return "\n".join(parts + ["</svg>", ""])


def _line(x1, y1, x2, y2):
    return f'<path d="M{x1:.1f} {y1:.1f}L{x2:.1f} {y2:.1f}" stroke="#dddddd"/>'


def _text(x, y, text, anchor, colour="#333333"):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}">{text}</text>'


def _time(power):
    unit, scale = next((unit, scale) for unit, scale in
                       (("s", 9), ("ms", 6), ("µs", 3), ("ns", 0)) if power >= scale)
    return f"{10 ** (power - scale):,} {unit}"
