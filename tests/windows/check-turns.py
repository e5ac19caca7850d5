#!/usr/bin/env python3
"""Checks that a second try hides nothing (driver/turns.py): what fails always fails, what fails once is told."""

import contextlib
import io
import subprocess
import sys
import tempfile
from pathlib import Path

from driver import paths, turns
from driver.checks import Checks

GOOD = "echo '3 passed, 0 failed'"
BAD = "echo '   ok    this'; echo '   FAIL  a key is lost; seen: 7'; echo '1 passed, 1 failed'; exit 1"


def once(folder, first, then=GOOD):
    """A command that does this the first time and that from then on."""
    mark = tempfile.mktemp(dir=folder)
    return f"if [ -e {mark} ]; then {then}; else touch {mark}; {first}; fi"


def played(commands, second_try=True, **options):
    """Whether it went well, what it printed, and how test.sh counts that: `commands` by name."""
    pieces = [turns.Piece(name, ["sh", "-c", command], **options) for name, command in commands.items()]
    with contextlib.redirect_stdout(io.StringIO()) as out:
        good = turns.play(pieces, 2, second_try)
    printed = out.getvalue()
    counted = subprocess.run(["awk", "-f", paths.TOOLS / "test-counts.awk"], input=printed, text=True, check=True,
                             capture_output=True).stdout.split()
    return good, printed, tuple(int(number) for number in counted)


def flakes(printed):
    return [line.strip() for line in printed.splitlines() if "FLAKY" in line]


def main():
    checks = Checks()
    with tempfile.TemporaryDirectory() as folder:
        good, printed, counted = played({"one": GOOD, "two": GOOD})
        checks.equal((good, flakes(printed), counted), (True, [], (6, 0)), "what passes is played once")

        good, printed, counted = played({"one": GOOD, "two": once(folder, BAD)})
        checks.equal((good, flakes(printed), counted), (True, ["FLAKY: two, a key is lost; seen: 7"], (6, 0)),
                     "what fails once passes and is told")
        checks.that("   FAIL  a key is lost; seen: 7" in printed, "what it printed at first is printed")

        good, printed, counted = played({"one": GOOD, "two": BAD})
        checks.equal((good, flakes(printed), counted), (False, [], (4, 1)), "what fails twice has failed")

        good, printed, counted = played({"one": GOOD, "two": once(folder, "exit 3")})
        checks.equal((good, flakes(printed), counted), (True, ["FLAKY: two, breaks off with code 3"], (6, 0)),
                     "what breaks off once is told")
        good, _, counted = played({"one": GOOD, "two": GOOD + "; exit 3"})
        checks.equal((good, counted), (False, (6, 1)), "good counts do not hide a bad end")

        good, printed, counted = played({"one": GOOD, "two": once(folder, BAD)}, second_try=False)
        checks.equal((good, flakes(printed), counted), (False, [], (4, 1)), "without second tries a flake is a failure")
        good, printed, counted = played({"one": once(folder, BAD)})
        checks.equal((good, counted), (False, (1, 1)), "what played alone gets none")
        good, printed, counted = played({"one": GOOD, "two": once(folder, BAD)}, alone=True)
        checks.equal((good, counted), (False, (4, 1)), "nor does what has to play alone")
        many = {f"scene {number}": once(folder, BAD) for number in range(turns.SECOND_TRIES + 1)}
        good, printed, counted = played(many)
        checks.equal((good, counted), (False, (len(many), len(many))), "where many fail, none does")

        pictures = Path(folder) / "pictures"
        drawn = f"mkdir -p {pictures}; touch {pictures}/"
        played({"one": GOOD, "two": once(folder, f"{drawn}first; {BAD}", f"{drawn}second; {GOOD}")}, pictures=pictures)
        kept = {str(path.relative_to(folder)) for path in Path(folder).rglob("*") if path.parent.name.startswith("pictures")}
        checks.equal(kept, {"pictures-failed/first", "pictures/second"}, "the pictures of the first try are kept")

        good, printed, _ = played({"one": GOOD, "late": "exec sleep 9"}, longest=0.2)
        checks.that(not good and "FAIL  late takes too long" in printed, "what takes too long has failed", printed)
    print(checks.summary())
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
