#!/usr/bin/env python3
"""Kills the real program while OK writes three lists of 200 buttons: killed-saves.py BITS [KILLS [SEED]]

After each kill the old or the new settings are whole in kestrel.ini, kestrel.sav or kestrel.bak. When in the writing a kill
comes is random, by a seed that is printed. This is for tools/long-run.sh: each kill takes some seconds.
"""

import random
import sys
import time

from driver import paths, settings
from driver.checks import Checks
from driver.setup import Setup
from driver.stage import KESTREL, Stage
from driver.tray import Tray
from driver.waiting import poll

KILLS = 10
KILLED = 9  # exit code
BUTTONS = 200
PATIENCE = 120  # seconds for all writes, on a busy machine
FILES = ("kestrel.ini", "kestrel.sav", "kestrel.bak")
OLD = "[global]\nlanguage=10000\n" + settings.made(
    {"autoToolbar": 0, "EAGLEpath": "C:\\eagle\\eagle.exe"},
    **{kind: [settings.button(f"{kind} {number}", f"display {number}") for number in range(1, BUTTONS + 1)]
       for kind in settings.SECTIONS})


class Saving:
    def __init__(self, stage, checks):
        self._stage, self._checks = stage, checks
        self._setup = Setup(stage)
        self.kestrel = 0

    def path(self, name):
        return self._stage.prefix.path(f"{KESTREL}\\{name}")

    def files(self):
        """What is in each that is there."""
        return {name: self.path(name).read_bytes() for name in FILES if self.path(name).exists()}

    def start(self, text):
        """With these settings and no trace of an earlier run; None lets all stand as it is."""
        if text is not None:
            for name in FILES:
                self.path(name).unlink(missing_ok=True)
        self.kestrel = self._stage.start_kestrel(text)

    def ask(self):
        """An edit in each list, then OK; waits until the writing has begun."""
        tray = Tray(self._stage)
        self._checks.that(tray.choose("configuration") and self._setup.comes(), "the setup is up")
        tray.lose_icon()  # a program that is killed leaves it, and the next one's would not be found
        for page in (1, 2, 3):
            self._setup.turn_to(page)
            self._setup.select(0)
            poll(lambda: self._setup.texts()[0])
            self._setup.fill(0, f"changed {page}")
        before = self.files()
        self._setup.press("Ok")
        poll(lambda: self.files() != before)

    def kill(self):
        """Gives whether it has ended so."""
        self._stage.witness.order("terminate", self.kestrel)
        return self._stage.witness.exit_code(self.kestrel) == KILLED

    def ends(self):
        """It comes to the end of its writes."""
        return poll(lambda: self._setup.form() is None, PATIENCE)


def undisturbed(checks, saving):
    """Gives what is stored before and afterwards, and how long the writing takes."""
    saving.start(OLD)
    old = saving.files()["kestrel.ini"]
    saving.ask()
    begin = time.monotonic()
    checks.that(saving.ends(), "OK stores the lists and closes the setup")
    taken = time.monotonic() - begin
    files = saving.files()
    checks.equal(sorted(files), ["kestrel.bak", "kestrel.ini"], "two files are left")
    checks.that(files.get("kestrel.bak") == old, "one with the old settings")
    new = files["kestrel.ini"]
    text = new.decode("cp1252")
    checks.equal([(len(rows), rows[0]["name"]) for rows in (settings.rows(text, kind) for kind in settings.SECTIONS)],
                 [(BUTTONS, f"changed {page}") for page in (1, 2, 3)], "the other with the new ones")
    checks.that(saving.kill(), "it can be killed")
    return old, new, taken


def killed(checks, saving, after):
    """Gives what the files hold then."""
    saving.start(OLD)
    saving.ask()
    time.sleep(after)
    checks.that(saving.kill(), f"killed {after * 1000:.0f} ms after the first write")
    return saving.files()


def told(files, old, new):
    """In words for the log."""
    return ", ".join(f"{name} {'old' if data == old else 'new' if data == new else f'{len(data)} bytes'}"
                     for name, data in files.items())


def next_save(checks, saving, old):
    """After the last kill the settings that it has left are written again; the old ones stay whole."""
    left = saving.files()
    saving.start(None)
    saving.ask()
    checks.that(saving.ends(), "a later OK comes to its end")
    if "kestrel.sav" in left:
        checks.that(saving.files().get("kestrel.bak") == old, "and leaves the old settings whole", told(saving.files(), old, b""))


def main():
    if len(sys.argv) < 2 or sys.argv[1] not in paths.PRESETS:
        sys.exit(__doc__.strip().split("\n", maxsplit=1)[0])
    bits = sys.argv[1]
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else KILLS
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.SystemRandom().randrange(10_000)
    chance, checks = random.Random(seed), Checks()
    print(f"-- killed saves, {bits}, seed {seed}", flush=True)
    with Stage(bits, paths.BUILD / "scenes" / bits / "killedSaves") as stage:
        saving = Saving(stage, checks)
        old, new, taken = undisturbed(checks, saving)
        checks.say(f"   the writing takes {taken * 1000:.0f} ms")
        torn = 0
        for _ in range(kills):
            files = killed(checks, saving, chance.uniform(0, taken))
            torn += files.get("kestrel.ini") not in (old, new)
            checks.that(any(data in (old, new) for data in files.values()),
                        f"the old or the new settings are whole: {told(files, old, new)}")
        checks.say(f"   {torn} of {kills} kills came between two writes")
        next_save(checks, saving, old)
        stage.picture("end")
    print(checks.summary(), flush=True)
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
