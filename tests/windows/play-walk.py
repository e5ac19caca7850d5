#!/usr/bin/env python3
"""Plays a walk through Kestrel's days under Wine, with real mouse and keyboard: play-walk.py BITS SEED|next [INPUTS]

Windows of two EAGLEs are opened, closed, renamed, moved, minimised, hung; toolbars, calculators, the tray and the setup are
used; all in an order that the seed gives. What must hold is looked at after each event, and some of it at each look
(walk/rules.py). `next` takes the seed behind the highest in walk/effort.tsv. Each round adds a line there: date, bitness,
seed, inputs, events, looks. Inputs are presses of buttons, keys, and what the EAGLEs were made to do. A round in which
something was wrong counts none of the three, and has a line only so that `next` goes on behind it; with its seed named it has none.
"""

import sys
import time
from collections import deque
from pathlib import Path

from driver import paths, settings, waiting
from driver.checks import Checks
from walk import events, rules, setupEdits
from walk.world import KINDS, WatchedStage, WalkFailed, World

EFFORT = Path(__file__).resolve().parent / "walk" / "effort.tsv"
INPUTS = 250
LOOK_EVERY = 0.02  # seconds: there is much to look at
LATEST = 12  # events that are told when something was wrong


class Walk:
    def __init__(self, stage, seed):
        self.world = World(stage, seed)
        self.played = 0
        self._latest = deque(maxlen=LATEST)
        self._asked = self.world.calculators
        self._counts = {}

    def begin(self):
        """All that is made once for the whole run has been made, then the program's windows are counted."""
        world = self.world
        world.wait(world.tray.icon, "the program starts")
        world.stage.witness.order("front")
        for _ in range(2):
            world.start_eagle()
        for kind in ("schematic", "board", "library"):
            world.open(kind, world.file(kind), world.eagles[0])
            world.settle()
        for event in (events.message, events.info, events.configuration, *[events.button] * 4):
            self._play(event)
        self._counts = self._counted()

    def _play(self, event):
        """False if there was nothing to play it with."""
        self.played += 1
        self._latest.append(f"{self.played} {event.__name__}")
        return event(self.world) and (self.world.settle() or True)

    def _counted(self):
        """By class, with an editor of each kind."""
        return rules.counts(self.world, self.world.stage.look())

    def go(self, inputs):
        while self.world.inputs < inputs:
            if not self._play(events.any_of_them(self.world)):
                self.played -= 1
                self._latest.pop()

    def end(self):
        """What is left when all is closed is what there was at first, and Exit ends the program."""
        world = self.world
        self._latest.append("the end")
        for eagle in list(world.eagles):
            eagle.order("quit")
            world.expect(world.stage.witness.exit_code(eagle.process) is not None, "EAGLE ends")
            world.gone(eagle)
        world.settle()
        setupEdits.ask_for_calculators(world, self._asked)
        world.start_eagle()
        for kind in [kind for kind in ("schematic", "board", "library") if kind in world.kinds()]:
            world.open(kind, world.file(kind), world.eagles[0])
            world.settle()
        if len(world.windows) == len(KINDS):
            world.wait(lambda: self._counted() == self._counts,
                       f"the program has the windows of the beginning, {self._counts}, not {self._counted()}")
        world.stage.watch = None
        world.tray.choose("exit")
        world.expect(world.stage.witness.exit_code(world.kestrel) == 0, "Exit ends the program")
        world.expect(world.tray.gone(), "the icon goes")
        desktop = world.stage.look()
        for window in world.windows:
            left = desktop.windows[window.handle]
            world.expect(left.enabled and not [child for child in left.children if child.class_name.startswith("Kestrel")],
                         "EAGLE's windows stand as without the program")
        world.expect(all(settings.rows(world.stage.settings(), kind) for kind in KINDS), "the settings can be read")

    def latest(self):
        return ", ".join(self._latest)


def next_seed():
    lines = EFFORT.read_text(encoding="ascii").split("\n")[:-1]
    return 1 + max((int(line.split("\t")[2]) for line in lines), default=0)


def main():
    if len(sys.argv) not in (3, 4) or sys.argv[1] not in paths.PRESETS:
        sys.exit(__doc__.strip().split("\n", maxsplit=1)[0])
    bits, asked = sys.argv[1:3]
    seed = next_seed() if asked == "next" else int(asked)
    waiting.LOOK_EVERY = LOOK_EVERY
    checks, begin = Checks(), time.monotonic()
    print(f"-- walk, {bits}, seed {seed}", flush=True)
    with WatchedStage(bits, paths.BUILD / "scenes" / bits / "walk") as stage:
        walk = Walk(stage, seed)
        try:
            walk.begin()
            walk.go(int(sys.argv[3]) if len(sys.argv) > 3 else INPUTS)
            walk.end()
            checks.passed = walk.played
        except Exception as error:  # pylint: disable=broad-except; whatever has broken it off, the seed is to be told
            checks.passed = max(walk.played - 1, 0)
            checks.that(False, f"seed {seed}: {error if isinstance(error, WalkFailed) else repr(error)}", walk.latest())
            stage.watch = None
            stage.picture(f"failed-{seed}")
        inputs, looks = walk.world.inputs, walk.world.looks
    print(f"seed {seed}: {inputs} inputs, {walk.played} events, {looks} looks, {time.monotonic() - begin:.0f} s", flush=True)
    if not checks.failed or asked == "next":
        counted = (0, 0, 0) if checks.failed else (inputs, walk.played, looks)
        with EFFORT.open("a", encoding="ascii") as effort:
            print(time.strftime("%Y-%m-%d"), bits, seed, *counted, sep="\t", file=effort)
    print(checks.summary(), flush=True)
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
