"""How the work grows with the number of windows, buttons or rows: docs/performance.png, our line and the bare one."""

import math
import subprocess

import raw
from driver import paths
from measuring import Bench
from ticking import Desk
from work import in_turn

COUNTS = (10, 30, 100, 300, 1000)
ROUNDS = 3
PICTURE = paths.PROJECT / "docs" / "performance.png"
WIDTH, HEIGHT, MARGIN = 460, 320, 60  # of one diagram
COLOURS = {"Kestrel": "#c0392b", "bare": "#2c3e50"}
MAGNITUDES = range(-1, 6)  # powers of ten that a diagram can have


def _tick(count, _bench):
    with Desk(count) as desk:
        return desk.compare("none", "bare", rounds=ROUNDS)


def _pair(work, bare):
    return lambda count, bench: in_turn(bench, work, bare, 1, 4, count, ROUNDS)


def _ok(count, bench):
    """Without the opening that each OK needs."""
    opening, both, bare = (bench.each(name, 0, 1, count) for name in ("setup-open", "setup-ok", "setup-ok-bare"))
    return both - opening, bare


WORKS = {"One tick, windows": (_tick, COUNTS),
         "Toolbar, buttons": (_pair("load", "load-bare"), COUNTS),
         "Opening the setup, rows of each list": (_pair("setup-open", "setup-open-bare"), COUNTS),
         "OK of the setup, rows of each list": (_ok, COUNTS)}


def growth(display):
    """Gives no rows of the report: the picture is its result."""
    diagrams = {}
    with Bench(display, "win-bench", "windows", 1) as bench:
        for work, (measure, counts) in WORKS.items():
            diagrams[work] = []
            for count in counts:
                own, bare = measure(count, bench)
                raw.note("growth", work=work, count=count, own_ms=own, bare_ms=bare)
                print(f"{work}, {count}: {own:.2f} ms beside {bare:.2f} ms", flush=True)
                diagrams[work].append((count, own, bare))
    draw(diagrams)
    return []


def draw(diagrams):
    columns = 2
    size = (columns * WIDTH, math.ceil(len(diagrams) / columns) * HEIGHT)
    parts = [_diagram(work, points, number % columns * WIDTH, number // columns * HEIGHT)
             for number, (work, points) in enumerate(diagrams.items())]
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{size[0]}" height="{size[1]}" font-family="sans-serif" '
           f'font-size="12"><rect width="100%" height="100%" fill="white"/>{"".join(parts)}</svg>')
    subprocess.run(["rsvg-convert", "-o", PICTURE], input=svg.encode(), check=True)


def _diagram(work, points, left, top):
    """Both axes by powers of ten, so that what grows evenly is a straight line."""
    values = [value for _, *both in points for value in both]
    low = max(power for power in MAGNITUDES if 10 ** power <= min(values) or power == MAGNITUDES[0])
    high = min(power for power in MAGNITUDES if 10 ** power >= max(values))
    first, last = math.log10(points[0][0]), math.log10(points[-1][0])

    def x(count):
        return left + MARGIN + (math.log10(count) - first) / (last - first) * (WIDTH - 2 * MARGIN)

    def y(value):
        share = (math.log10(max(value, 10 ** low)) - low) / (high - low)
        return top + HEIGHT - MARGIN - share * (HEIGHT - 2 * MARGIN)

    parts = [f'<text x="{left + WIDTH / 2}" y="{top + 24}" text-anchor="middle" font-weight="bold">{work}</text>']
    for power in range(low, high + 1):
        level = y(10 ** power)
        parts.append(f'<line x1="{left + MARGIN}" x2="{left + WIDTH - MARGIN}" y1="{level}" y2="{level}" stroke="#ddd"/>'
                     f'<text x="{left + MARGIN - 6}" y="{level + 4}" text-anchor="end">{10.0 ** power:g} ms</text>')
    for count, *_ in points:
        parts.append(f'<text x="{x(count)}" y="{top + HEIGHT - MARGIN + 18}" text-anchor="middle">{count}</text>')
    for line, (name, colour) in enumerate(COLOURS.items(), start=1):
        places = " ".join(f"{x(point[0]):.1f},{y(point[line]):.1f}" for point in points)
        parts.append(f'<polyline points="{places}" fill="none" stroke="{colour}" stroke-width="2"/>'
                     f'<text x="{left + WIDTH - MARGIN - 90 * (3 - line) + 60}" y="{top + HEIGHT - 14}" fill="{colour}">{name}</text>')
    return "".join(parts)
