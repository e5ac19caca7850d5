#!/usr/bin/env python3
"""Plays the users' check whole, as a double click on check.cmd does, and says how long it took: whole-check.py.

Its report stays in build/scenes/win64/wholeCheck. The scene checkKit plays it with a few contract tests. This is for
tools/long-run.sh, since the whole takes minutes.
"""

import sys
import time

from driver import paths
from driver.checkKit import CheckKit
from driver.checks import Checks
from driver.stage import Stage

ANNOUNCED = 120  # seconds
FOR_READING = 20  # that its last line stays


def main():
    checks = Checks()
    pictures = paths.BUILD / "scenes" / "win64" / "wholeCheck"
    with Stage("win64", pictures) as stage:
        kit = CheckKit(stage)
        begin = time.monotonic()
        checks.equal(kit.run(seconds=900), 0, "all is played and nothing fails")
        taken = time.monotonic() - begin - FOR_READING
        checks.equal(kit.failures(), [], "none failed")
        checks.that(kit.counts() and kit.counts()[1] == 0, "the last line counts the checks", kit.counts())
        checks.equal(kit.temporary(), [], "nothing is left in the temporary folder")
        checks.that(taken <= ANNOUNCED, "it takes no longer than it announces", f"{taken:.0f} s")
        checks.say(f"   it took {taken:.0f} s of the {ANNOUNCED} announced; {kit.counts()}")
        stage.picture("end")
        (pictures / "kestrel-check.txt").write_text(kit.report(), encoding="utf-8")
    print(checks.summary())
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
