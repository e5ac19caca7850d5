#!/usr/bin/env python3
"""Plays the scenes, two at a time: play-all.py [--once] win32|win64 [SCENE]...

Each has a display, a prefix and files of its own, and waits most of its time. What a scene prints, its checks and its
counts, comes when it has ended; a scene without counts has broken off and counts as one failure. The table at the end
says how long each took. The exit code tells whether all went well. A scene that has failed beside another is played once
more, alone; if it passes then, a line FLAKY under the table says what had failed. With --once there is no second try.
"""

import sys
from pathlib import Path

from driver import paths, turns

SCENES = Path(__file__).resolve().parent / "scenes"
NO_SCENE = "play"  # what the scenes share
AT_ONCE = 2
ALONE = {"manyWindows"}  # its hundreds of windows keep the machine busy by themselves


def main():
    once, (bits, *scenes) = sys.argv[1] == "--once", [word for word in sys.argv[1:] if word != "--once"]
    if not scenes:
        # The main job first: without it there is no use in the others.
        scenes = sorted((file.stem for file in SCENES.glob("*.py") if file.stem != NO_SCENE),
                        key=lambda name: (name != "mainJob", name))
    pieces = [turns.Piece(f"{bits} {scene}", [sys.executable, SCENES / f"{scene}.py", bits], alone=scene in ALONE,
                          pictures=paths.BUILD / "scenes" / bits / scene) for scene in scenes]
    return 0 if turns.play(pieces, AT_ONCE, not once) else 1


if __name__ == "__main__":
    sys.exit(main())
