#!/usr/bin/env python3
"""Plays scenes and contract suites under Wine, three at a time: play-all.py [--once] BITS [NAME]... [BITS [NAME]...]...

BITS is win32 or win64; the names that follow it are scenes, `scenes` for all of them, which is also what no name means,
and contract suites: `contract`, `contract-932` and `contract-65001` by the code page.

Each has a display, a prefix and files of its own, and waits most of its time: a scene uses a third of a core, a suite
two thirds. What one prints, its checks and its counts, comes when it has ended; one without counts has broken off and
counts as one failure. The table at the end says how long each took. The exit code tells whether all went well. What has
failed beside others is played once more, alone; if it passes then, a line FLAKY under the table says what had failed.
With --once there is no second try.
"""

import sys
from pathlib import Path

from driver import paths, turns

SCENES = Path(__file__).resolve().parent / "scenes"
NO_SCENE = "play"  # what the scenes share
LOCALES = {"contract": [], "contract-932": ["ja_JP"], "contract-65001": ["hi_IN"]}
AT_ONCE = 3
ALONE = {"manyWindows"}  # its hundreds of windows keep the machine busy by themselves

# Seconds that the long ones take on a machine with two cores; the longest begin first, so that none is left over at the
# end while nothing plays beside it.
SECONDS = {"contract": 130, "contract-932": 130, "contract-65001": 130, "dropDowns": 124, "checkKit": 93, "setupOptions": 52,
           "hungHost": 48, "hungHostEnd": 42, "keyboard": 42, "iconChooser": 37, "dialogScreens": 40, "brokenSettings": 35, "sessionEnd": 31,
           "resolutions": 30, "installer": 29, "helpExamples": 26, "hostLife": 24}


def piece(bits, name):
    suite = name in LOCALES
    return turns.Piece(
        f"{bits} {name}",
        [paths.TOOLS / "test-contract.sh", paths.PRESETS[bits], *LOCALES[name]] if suite else
        [sys.executable, SCENES / f"{name}.py", bits],
        seconds=SECONDS.get(name, 20),
        longest=1260 if suite else 600,  # on a busy machine; a suite ends itself before that
        alone=name in ALONE,
        pictures=paths.BUILD / "scenes" / bits / name)


def pieces(words):
    """The command line's, by bitness and names."""
    groups = []
    for word in words:
        if word in paths.PRESETS:
            groups.append((word, []))
        else:
            groups[-1][1].append(word)
    scenes = sorted(file.stem for file in SCENES.glob("*.py") if file.stem != NO_SCENE)
    return [piece(bits, one) for bits, names in groups for name in names or ["scenes"]
            for one in (scenes if name == "scenes" else [name])]


def main():
    words = [word for word in sys.argv[1:] if word != "--once"]
    if not words or words[0] not in paths.PRESETS:
        sys.exit(f"say which: {' or '.join(paths.PRESETS)}")
    return 0 if turns.play(pieces(words), AT_ONCE, "--once" not in sys.argv) else 1


if __name__ == "__main__":
    sys.exit(main())
