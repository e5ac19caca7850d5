"""docs/performance.md: a section for each measurement, of which only those made anew change."""

import os
import re
import time

import sizes
from driver import paths

DOCUMENT = paths.PROJECT / "docs" / "performance.md"
INTRODUCTION = """# Performance

Made by `bench/run.py`; each section says when and beside how much other work. CPU time under Wine is that of the program and
of its Wine server together, pinned to one core. Only the ratio within one section says something, since both are measured in
turn; the last column has the most that it should be. `build/bench` has the raw figures of the last run.
"""
TABLE = "| Work | Kestrel | Bare calls | Ratio | At most |\n| --- | --- | --- | --- | --- |\n"
# By measurement, in the order of the document: its heading, and what it is.
SECTIONS = {
    "ticks": ("Ticking", """The finished program, its icon in the tray, ticks by itself beside EAGLE's control panel for seven times five seconds in
each case, of which the middle one counts. The bare program makes the same calls from a timer: the processes until EAGLE is
found, four passes over all titles, one look for a file; with the editors in front three passes that end where a search ends. The
program reads the titles once a tick.

Of the display nothing is asked in a tick. On 2026-11-23 `strace -f -yy -p` wrote down all that the ticking program did in ten
seconds, once without an editor and once with three in front, and the same of the bare program: Kestrel sent nothing to the
display's socket, and looked for something from it thirteen times a tick, each time in vain; the bare program never did. That is
Wine's look for events before and after it waits, in every thread that has ever made a window.""" + "\n\n" + TABLE),
    "load": ("Filling a toolbar", """The bare new board gets the same windows by the same calls in the same order, as a plain program makes them, and
the titles are read once before and once after; `bench/bareEditor.h` names the calls. In both the host is a window of the same
thread, which an editor of EAGLE is not.""" + "\n\n" + TABLE),
    "start": ("Start, calculator, memory", """The start is that of the finished program, by another program as by a user's shell, until its icon stands in the tray,
beside `bench/trayBench.cpp`, a plain program with the same manifest: a window that is shown for as long as the splash is, an icon
in the tray, a message loop. The splash counts as that window; what `start-bench splash` takes more than `start-bench plain` is
taken off.

Both have what Wine makes for any program of the kind: the common controls and their look with the first control that the manifest
gives it, and the component objects with the first window that becomes active, since the input methods ask for them. What an icon
in the tray can do without, the program binds when it is first needed: dialogs and component objects; its pictures it reads itself.
It was linked with them until 2026-11-23, and the system read its pictures: 17.7 MB, and 84 ms to the icon without the splash. A
plain program without manifest and without a window to be seen took 7.9 MB and 60 ms then, so that 14.3 MB are 1.8 times the
leanest program that has an icon.""" + "\n\n" + TABLE),
    "setup": ("Setup", """The bare dialog has the same controls with the same rows, which each list paints once when all are there, and nothing behind
them. The bare OK makes the same calls of the system that write to the settings file. When it closes, the program gives up each of
some 110 windows by itself, which the bare dialog leaves to the system, and it tells some of them a text or a place a second time.""" + "\n\n" + TABLE),
    "growth": ("Growth", "![Ticks, toolbars and the setup by their size](performance.png)\n"),
    "hangs": ("While an EAGLE hangs", """What is asked for while an EAGLE hangs is measured by the clock until it is seen, beside the same with none that hangs; its
limit is for a machine that does nothing else.""" + "\n\n" + TABLE),
    "titles": ("One title", """The tracker's own logic for one window title, on the simulated desktop (at most 25 ns; no memory is taken from the heap, which
a test watches).""" + "\n\n"),
    "memory": ("Memory while ticking", """Private memory under Wine with three hosted toolbars, beside a bare program with the same manifest that shows a window for as long
as the splash is seen and then makes the calls of a tick as often (at most 1.5 times, and flat over the second half).""" + "\n\n"),
    "contents": ("What is in the program", """Bytes of the 32-bit program by library and by symbol, the largest first. 115 KB of the program are tables by which an error
finds its way through the routines, 98 of them those of the program's own: what goes wrong is an error that is caught in one place,
and each routine on the way has to be in them. `libmingwex` is the reading and formatting of numbers.

What could go has gone: the library's own exceptions (85 KB), and its threads over POSIX (28 KB). Optimising while linking is not
to be had, GCC 12 ended in an internal error of its own. 480 KB, which were aimed at, are not reached: the program's own code and its
tables alone are 440 KB, the pictures and icons 46, and what else would go is written for people to read.""" + "\n\n"),
    "sizes": ("Sizes", """The program is stripped and needs no library of its own. `packaging/sizes.py` writes this table alone; what was not built then
keeps its former line.""" + "\n\n"),
}


class Occasion:
    """When a measurement was made and how busy the machine was."""

    def __init__(self):
        self._begin = time.strftime("%Y-%m-%d %H:%M")
        self._load = os.getloadavg()[0]

    def __str__(self):
        loads = sorted((self._load, os.getloadavg()[0]))
        return f"Measured on {self._begin}, load of the machine {loads[0]:.0f} to {loads[1]:.0f} on {os.cpu_count()} cores."


def _former():
    """The sections as they stand, by heading."""
    text = DOCUMENT.read_text(encoding="utf-8") if DOCUMENT.exists() else ""
    parts = re.split(r"^## (.*)\n", text, flags=re.MULTILINE)[1:]
    return dict(zip(parts[::2], (part.strip() + "\n" for part in parts[1::2])))


def write(measured):
    """`measured` are the texts of the measurements made, with their occasions. The sizes are taken each time."""
    bodies = _former()
    for name, (occasion, text) in measured.items():
        heading, words = SECTIONS[name]
        bodies[heading] = f"{occasion}\n\n{words}{text}".strip() + "\n"
    heading, words = SECTIONS["sizes"]
    bodies[heading] = words + sizes.taken(bodies.get(heading, ""))
    parts = [f"## {heading}\n\n{bodies[heading]}" for heading, _ in SECTIONS.values() if heading in bodies]
    DOCUMENT.write_text("\n".join([INTRODUCTION, *parts]), encoding="utf-8")
