"""What is measured under Wine, each beside a bare counterpart. Each gives the rows of the report one after the other."""

import statistics

import raw
from driver import paths, settings
from driver.stage import KESTREL, Stage
from driver.tray import Tray
from driver.waiting import poll
from measuring import BITS, FOLDER, Bench, private_kb

ROUNDS = 5
STARTS = 8
OTHERS = 300
BUTTONS = "3 lists of 200 buttons"
PICTURES = paths.BUILD / "bench"


def row(work, own, bare, unit, most, digits=2):
    return f"| {work} | {own:.{digits}f} {unit} | {bare:.{digits}f} {unit} | {own / bare:.2f} | {most} |"


def in_turn(bench, work, bare, few, many, size=None, rounds=ROUNDS):
    """Milliseconds of both for one round of their work, the middle of some: in turn, so that what else the machine does meets
    both alike, and one that it met hard does not count."""
    pairs = []
    for turn in range(rounds):
        pairs.append([bench.each(name, few, many, *([size] if size else [])) for name in (work, bare)])
        raw.note("work", work=work, size=size or "", round=turn, own_ms=pairs[-1][0], bare_ms=pairs[-1][1])
    return [statistics.median(values) for values in zip(*pairs)]


def load(display):
    with Bench(display, "win-bench", "windows", 1) as bench:
        for buttons, many in ((100, 22), (400, 8)):
            yield row(f"`loadVarBar`, {buttons} buttons with icons", *in_turn(bench, "load", "load-bare", 2, many, buttons), "ms",
                      "1.00")
    with Bench(display, "win-bench", "windows", OTHERS) as bench:
        yield row(f"A new board beside {OTHERS} windows: tick, toolbar with 40 buttons, calculator",
                  *in_turn(bench, "editor", "editor-bare", 2, 12), "ms", "1.20")


def start(display):
    yield row("Start to tray icon, a plain window for the splash", *start_cost(display), "ms", "1.15")
    with Bench(display, "start-bench", "stay") as bench:
        yield row("Key release to the result in the other field", *in_turn(bench, "keys", "keys-bare", 50, 1050), "ms", "1.20")
    yield row("Private memory with the tray icon", *start_memory(), "KB", "1.15", 0)
    yield f"| Private memory of one more toolbar with 40 buttons | {toolbar_memory():.0f} KB | | | 150 KB |"


def start_cost(display):
    """Milliseconds of the finished program and of a plain one. The first start of each is not counted: the system is still getting
    ready for icons."""
    with Bench(display, "start-bench", "stay") as bench:
        bench.put([paths.built(BITS, "tray-bench.exe")])
        bench.put(sorted(paths.program_folder(BITS).iterdir()), KESTREL)
        figures = []
        for turn in range(STARTS + 1):
            whole, bare = (bench.until_icon(file) for file in (KESTREL + "\\kestrel.exe", FOLDER + "\\tray-bench.exe"))
            splash = bench.cpu("splash") - bench.cpu("plain")
            raw.note("start", turn=turn, whole_ms=whole * 1000, splash_ms=splash * 1000, bare_ms=bare * 1000)
            figures.append((whole * 1000, splash * 1000, bare * 1000))
        whole, splash, bare = (statistics.median(times) for times in zip(*figures[1:]))
        return whole - splash, bare


def start_memory():
    """Once the icon stands, before any EAGLE is there, and that of a plain program with an icon."""
    with Stage(BITS, PICTURES) as stage:
        stage.prefix.put([paths.built(BITS, "tray-bench.exe")], FOLDER)
        stage.start_kestrel("")
        if not poll(Tray(stage).icon):
            raise RuntimeError("the tray icon is missing")
        stage.witness.run(FOLDER + "\\tray-bench.exe")
        if not poll(lambda: len(stage.look().top(class_name="__wine_tray_icon")) == 2):
            raise RuntimeError("the plain program's icon is missing")
        own, bare = private_kb(stage.prefix, "kestrel.exe"), private_kb(stage.prefix, "tray-bench.exe")
        raw.note("start_memory", own_kb=own, bare_kb=bare)
        return own, bare


def toolbar_memory():
    """KB that each of some toolbars takes, what the first ones bring along for all left out."""
    rows = [settings.button(f"Button {number}", "window fit", tooltip="a tip", icon=KESTREL + "\\brd.ico,0") for number in range(40)]
    before, more = 2, 6
    with Stage(BITS, PICTURES) as stage:
        eagle = stage.start_eagle()
        stage.start_kestrel(settings.made({"autoToolbar": 0}, board=rows))
        used = []
        for number in range(before + more):
            board = eagle.open("board", f"C:\\work\\board{number}.brd")
            if not stage.toolbar(board):
                raise RuntimeError(f"the toolbar of board {number} is missing")
            used.append(private_kb(stage.prefix, "kestrel.exe"))
        raw.note("memory", **{f"toolbars_{number + 1}_kb": kb for number, kb in enumerate(used)})
        return (used[-1] - used[before - 1]) / more


def setup(display):
    """An OK closes the dialog, so each has an opening of its own, which is taken off again."""
    with Bench(display, "win-bench", "windows", 1) as bench:
        opening, bare = in_turn(bench, "setup-open", "setup-open-bare", 1, 11)
        yield row(f"Opening the setup, {BUTTONS}", opening, bare, "ms", "1.50")
        both, bare = in_turn(bench, "setup-ok", "setup-ok-bare", 1, 3)
        yield row(f"OK of the setup, {BUTTONS}", both - opening, bare, "ms", "1.05", 0)
