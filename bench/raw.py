"""The raw figures of the measurements in build/bench: for each a folder, with a file of comma-separated lines for each kind."""

import csv
import os
import time

from driver import paths

FOLDER = paths.BUILD / "bench"
_measured = ""
_begun = set()  # files that are of this run


def begin(measurement):
    """What follows is of this one."""
    global _measured
    _measured = measurement


def note(kind, **figures):
    """One line, with its time and what else the machine has to do."""
    path = FOLDER / _measured / f"{kind}.csv"
    path.parent.mkdir(parents=True, exist_ok=True)
    line = {"time": time.strftime("%Y-%m-%d %H:%M:%S"), "load": round(os.getloadavg()[0], 2), **figures}
    begins = path not in _begun
    _begun.add(path)
    with path.open("w" if begins else "a", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, line)
        if begins:
            writer.writeheader()
        writer.writerow(line)
