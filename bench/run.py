#!/usr/bin/env python3
"""Plays the measurements and writes docs/performance.md: bench/run.py [--memory] [MEASUREMENT]...

Sets up and builds what these need. --memory adds the ten minutes of ticking with three hosted toolbars; without it that table
stays as it is. With the names of measurements only these are made and shown, and the document stays as it is.
"""

import argparse
import contextlib
import os
import subprocess
import sys
import time
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
sys.path[:0] = [str(PROJECT / "tests" / "windows"), str(PROJECT / "packaging")]

import hangs  # noqa: E402, the way to it stands above
import sizes  # noqa: E402
import work  # noqa: E402
from driver.display import Display  # noqa: E402
from memory import ticking_memory  # noqa: E402

REPORT = PROJECT / "docs" / "performance.md"
TITLES, MEMORY = "titles", "memory"
MEASUREMENTS = {"ticks": work.ticks, "load": work.load, "start": work.start, "setup": work.setup, "hangs": hangs.hangs,
                TITLES: None}
# What is built of each preset for a measurement: the drivers' stage, where one plays on it, and the programs measured.
STAGE = {"i686": {"dist", "eagle"}, "x86_64": {"witness"}}
BENCH = {"i686": {"win-bench"}}
NEEDS = {"ticks": [BENCH], "load": [BENCH], "setup": [BENCH], "start": [STAGE, {"i686": {"start-bench"}}],
         "hangs": [STAGE], MEMORY: [STAGE, BENCH], TITLES: [{"native-release": {"title-bench"}}]}


@contextlib.contextmanager
def step(what):
    """Says what is being done, and at its end how long it took."""
    print(f"== {what}", flush=True)
    begin = time.monotonic()
    yield
    print(f"== {what}: {time.monotonic() - begin:.0f} s", flush=True)


def build(chosen):
    """Sets up and builds what the measurements need."""
    targets = {}
    for needed in (needed for name in chosen for needed in NEEDS[name]):
        for preset, names in needed.items():
            targets.setdefault(preset, set()).update(names)
    run_tool("setup-toolchain.sh")
    for preset, names in targets.items():
        run_tool("build.sh", preset, *sorted(names))
    if targets.keys() - {"native-release"}:
        run_tool("setup-wine.sh")


def run_tool(script, *arguments):
    command = " ".join([f"tools/{script}", *arguments])
    with step(command):
        if subprocess.run([PROJECT / "tools" / script, *arguments], check=False).returncode != 0:
            raise RuntimeError(f"{command} has failed")


def on_core(core):
    """Where this program and all that it starts from here on run."""
    os.sched_setaffinity(0, {core})


def under_wine(chosen):
    """The rows of the table. What is measured has a core to itself, the display the other one if there are two."""
    cores = sorted(os.sched_getaffinity(0))
    rows = []
    if not chosen:
        return rows
    try:
        on_core(cores[-1])
        with Display() as display:
            on_core(cores[0])
            for name in chosen:
                with step(f"{name}, under Wine"):
                    for row in MEASUREMENTS[name](display):
                        print(row, flush=True)
                        rows.append(row)
    finally:
        os.sched_setaffinity(0, cores)
    return rows


def title_cost():
    with step("titles, on the simulated desktop"):
        text = subprocess.run([PROJECT / "build" / "native-release" / "bin" / "title-bench"], check=True, text=True,
                              stdout=subprocess.PIPE).stdout
        print(text, end="", flush=True)
    return text


def former_memory():
    """The table as it stands; empty if there is none."""
    begin, end = "Private memory under Wine while", "The program is stripped"
    text = REPORT.read_text(encoding="utf-8") if REPORT.exists() else ""
    return text[text.index(begin):text.index(end)] if begin in text else ""


def new_memory():
    rows = []
    with step("memory, under Wine"):
        for row in ticking_memory():
            print(row, flush=True)
            rows.append(row + "\n")
    return "".join(rows) + "\n"


def write(rows, titles, memory):
    table = "\n".join(rows)
    REPORT.write_text(f"""# Performance

Made by `bench/run.py` (and `--memory` for the ten minutes of ticking). CPU time under Wine is that of the program and of
its Wine server together, pinned to one core; start-up is left out, except where it is what is measured. Only the ratio within
one run says something; the last column has the most that it should be. What is asked for while an EAGLE hangs is measured by
the clock until it is seen, beside the same with none that hangs; its limit is for a machine that does nothing else.

| Work | Kestrel | Bare calls | Ratio | At most |
| --- | --- | --- | --- | --- |
{table}

The tracker's own logic for one window title, on the simulated desktop (at most 25 ns; no memory is taken from the heap,
which a test watches):

```
{titles}```

{memory}The program is stripped and needs no library of its own; `packaging/sizes.py` writes this table alone.

{sizes.table()}""", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--memory", action="store_true", help="ten minutes of ticking with three hosted toolbars as well")
    parser.add_argument("measurements", metavar="MEASUREMENT", nargs="*", help=f"one of {', '.join(MEASUREMENTS)}; by default all")
    wanted = parser.parse_args()
    if unknown := set(wanted.measurements) - set(MEASUREMENTS):
        parser.error(f"there is no measurement {', '.join(sorted(unknown))}")
    chosen = [name for name in MEASUREMENTS if name in wanted.measurements] or list(MEASUREMENTS)
    with step("all"):
        build([*chosen, *([MEMORY] if wanted.memory else [])])
        rows = under_wine([name for name in chosen if name != TITLES])
        titles = title_cost() if TITLES in chosen else ""
        memory = new_memory() if wanted.memory else former_memory()
        if not wanted.measurements:
            write(rows, titles, memory)
            print(f"== written: {REPORT.relative_to(PROJECT)}")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        sys.exit("!! broken off, nothing is written")
    except (OSError, RuntimeError, subprocess.CalledProcessError) as error:
        sys.exit(f"!! {error}; nothing is written")
