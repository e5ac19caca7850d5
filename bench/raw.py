"""The raw figures of the measurements, a file of comma-separated lines for each in build/bench."""

import csv
import os
import time

from driver import paths

FOLDER = paths.BUILD / "bench"
_begun = set()  # measurements whose file is of this run


def note(measurement, **figures):
    """One line, with its time and what else the machine has to do."""
    FOLDER.mkdir(parents=True, exist_ok=True)
    line = {"time": time.strftime("%Y-%m-%d %H:%M:%S"), "load": round(os.getloadavg()[0], 2), **figures}
    begins = measurement not in _begun
    _begun.add(measurement)
    with (FOLDER / f"{measurement}.csv").open("w" if begins else "a", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, line)
        if begins:
            writer.writeheader()
        writer.writerow(line)
