#!/usr/bin/env python3
"""Plays the measurements and writes docs/performance.md: bench/run.py [--memory] [MEASUREMENT]...

Sets up and builds what these need. With the names of measurements only these are made, and the other sections of the document
stay as they are. --memory adds the ten minutes of ticking with three hosted toolbars. What has been measured is written also if
a later measurement fails. build/bench has the raw figures.
"""

import argparse
import contextlib
import os
import re
import subprocess
import sys
import time
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
sys.path[:0] = [str(PROJECT / "tests" / "windows"), str(PROJECT / "packaging")]

import contents  # noqa: E402, the way to it stands above
import growth  # noqa: E402
import hangs  # noqa: E402
import raw  # noqa: E402
import report  # noqa: E402
import ticking  # noqa: E402
import work  # noqa: E402
from driver.display import Display  # noqa: E402
from driver.programs import OrderFailed  # noqa: E402
from memory import ticking_memory  # noqa: E402

TITLES, MEMORY, CONTENTS = "titles", "memory", "contents"
# Those that take a display give the rows of a table one after the other.
MEASUREMENTS = {"ticks": ticking.ticks, "load": work.load, "start": work.start, "setup": work.setup, "growth": growth.growth,
                "hangs": hangs.hangs}
OTHERS = (TITLES, CONTENTS)
TITLE_COST = re.compile(r"(.*?) +([\d.]+) ns a title, of these +([\d.]+) ns ")  # a line of title-bench
# What is built of each preset for a measurement: the drivers' stage, where one plays on it, and the programs measured.
STAGE = {"i686": {"dist", "eagle"}, "x86_64": {"witness"}}
BENCH = {"i686": {"win-bench"}}
TICKS = {"i686": {"tick-bench"}}
NEEDS = {"ticks": [STAGE, TICKS], "load": [BENCH], "setup": [BENCH], "start": [STAGE, {"i686": {"start-bench", "tray-bench"}}],
         "growth": [STAGE, TICKS, BENCH], "hangs": [STAGE], MEMORY: [STAGE, TICKS],
         TITLES: [{"native-release": {"title-bench"}}], CONTENTS: [{"i686": {"dist"}}]}


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


def under_wine(chosen, measured):
    """Leaves the rows of each measurement in `measured`. What is measured has a core to itself, the display the other one if
    there are two."""
    cores = sorted(os.sched_getaffinity(0))
    if not chosen:
        return
    try:
        on_core(cores[-1])
        with Display() as display:
            on_core(cores[0])
            for name in chosen:
                rows, occasion = [], report.Occasion()
                raw.begin(name)
                with step(f"{name}, under Wine"):
                    for row in MEASUREMENTS[name](display):
                        print(row, flush=True)
                        rows.append(row)
                measured[name] = str(occasion), "\n".join(rows)
    finally:
        os.sched_setaffinity(0, cores)


def title_cost():
    with step("titles, on the simulated desktop"):
        text = subprocess.run([PROJECT / "build" / "native-release" / "bin" / "title-bench"], check=True, text=True,
                              stdout=subprocess.PIPE).stdout
        print(text, end="", flush=True)
    for line in text.splitlines():
        title, whole, bare = TITLE_COST.match(line).groups()
        raw.note("titles", title=title, whole_ns=float(whole), bare_ns=float(bare))
    return f"```\n{text}```"


def new_memory():
    rows = []
    with step("memory, under Wine"):
        for row in ticking_memory():
            print(row, flush=True)
            rows.append(row)
    return "\n".join(rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--memory", action="store_true", help="ten minutes of ticking with three hosted toolbars as well")
    parser.add_argument("measurements", metavar="MEASUREMENT", nargs="*", help=f"one of {', '.join([*MEASUREMENTS, *OTHERS])}; by default all")
    wanted = parser.parse_args()
    names = [*MEASUREMENTS, *OTHERS]
    if unknown := set(wanted.measurements) - set(names):
        parser.error(f"there is no measurement {', '.join(sorted(unknown))}")
    chosen = [name for name in names if name in wanted.measurements] or names
    measured = {}
    with step("all"):
        build([*chosen, *([MEMORY] if wanted.memory else [])])
        try:
            under_wine([name for name in chosen if name in MEASUREMENTS], measured)
            for name, measure, made in ((TITLES, title_cost, TITLES in chosen), (MEMORY, new_memory, wanted.memory),
                                        (CONTENTS, contents.contents, CONTENTS in chosen)):
                if made:
                    raw.begin(name)
                    occasion = report.Occasion()
                    measured[name] = occasion, measure()
        finally:
            if measured:
                report.write(measured)
                print(f"== written: {', '.join(measured)} in {report.DOCUMENT.relative_to(PROJECT)}")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        sys.exit("!! broken off")
    except OrderFailed as error:
        sys.exit(f"!! a program of the stage: {error}")
    except (OSError, RuntimeError, subprocess.CalledProcessError) as error:
        sys.exit(f"!! {error}")
