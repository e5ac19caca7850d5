"""What is measured under Wine, each beside a bare counterpart. Each gives the rows of the report one after the other."""

from driver import paths
from driver.stage import Stage
from driver.tray import Tray
from driver.waiting import poll
from measuring import BITS, FOLDER, Bench, private_kb

ROUNDS = 3
STARTS = 8
BUTTONS = "3 lists of 200 buttons"
PICTURES = paths.BUILD / "bench"


def mean(values):
    return sum(values) / len(values)


def row(work, own, bare, unit, most, digits=2):
    return f"| {work} | {own:.{digits}f} {unit} | {bare:.{digits}f} {unit} | {own / bare:.2f} | {most} |"


def in_turn(bench, work, bare, few, many):
    """Milliseconds of both. In turn, so that what else the machine does meets both alike."""
    pairs = [(bench.each(work, few, many), bench.each(bare, few, many)) for _ in range(ROUNDS)]
    return [mean(values) for values in zip(*pairs)]


def ticks(display):
    for windows, many in ((10, 700), (100, 500), (500, 250)):
        with Bench(display, "win-bench", "windows", windows) as bench:
            yield row(f"One tick, {windows} further windows", *in_turn(bench, "tick", "tick-bare", 50, many), "ms", "1.10")


def load(display):
    with Bench(display, "win-bench", "windows", 1) as bench:
        yield row("`loadVarBar`, 100 buttons with icons", *in_turn(bench, "load", "load-bare", 2, 22), "ms", "1.25")


def start(display):
    with Bench(display, "start-bench", "tray") as bench:
        # The splash's two seconds are idle.
        pairs = [(bench.cpu("start") * 1000, bench.cpu("start-bare") * 1000) for _ in range(STARTS)]
        yield row("Start to tray icon, without the splash's two seconds", *map(mean, zip(*pairs)), "ms", "1.50")
        yield row("Key release to the result in the other field", *in_turn(bench, "keys", "keys-bare", 50, 1050), "ms",
                  "none set")
    yield row("Private memory with the tray icon", *start_memory(), "KB", "1.50", 0)


def start_memory():
    """Once the icon stands, before any EAGLE is there, and that of a bare program with an icon."""
    with Stage(BITS, PICTURES) as stage:
        stage.prefix.put([paths.built(BITS, "start-bench.exe")], FOLDER)
        stage.start_kestrel("")
        if not poll(Tray(stage).icon):
            raise RuntimeError("the tray icon is missing")
        stage.witness.run(FOLDER + "\\start-bench.exe tray")
        if not poll(lambda: len(stage.look().top(class_name="__wine_tray_icon")) == 2):
            raise RuntimeError("the bare tray icon is missing")
        return private_kb(stage.prefix, "kestrel.exe"), private_kb(stage.prefix, "start-bench.exe")


def setup(display):
    """An OK closes the dialog, so each has an opening of its own, which is taken off again."""
    with Bench(display, "win-bench", "windows", 1) as bench:
        rounds = [[bench.each(work, 1, many) for work, many in (("setup-open", 11), ("setup-ok", 4), ("setup-ok-bare", 4))]
                  for _ in range(ROUNDS)]
    opening, both, bare = map(mean, zip(*rounds))
    yield f"| Opening the setup, {BUTTONS} | {opening:.2f} ms | | | |"
    yield row(f"OK of the setup, {BUTTONS}", both - opening, bare, "ms", "1.15", 0)
