#!/usr/bin/env python3
"""Plays the scenes one after the other: play-all.py win32|win64 [SCENE]...

Each prints its checks and its counts; a scene without counts has broken off and counts as one failure. The table at
the end says how long each took. The exit code tells whether all went well.
"""

import signal
import subprocess
import sys
import time
from pathlib import Path

SCENES = Path(__file__).resolve().parent / "scenes"
NO_SCENE = "play"  # what the scenes share
LONGEST = 240  # seconds for a scene


def play(scene, bits):
    """Passes on what the scene prints. Gives its outcome."""
    with subprocess.Popen([sys.executable, SCENES / f"{scene}.py", bits], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, bufsize=1) as process:
        timer = time.monotonic() + LONGEST
        last = ""
        signal.signal(signal.SIGALRM, lambda *_: process.send_signal(signal.SIGINT))
        signal.alarm(LONGEST)
        for line in process.stdout:
            print(line, end="", flush=True)
            last = line.strip()
        signal.alarm(0)
    if not last.endswith(" failed"):
        print("   FAIL  the scene " + ("takes too long" if time.monotonic() >= timer else "breaks off"))
        print("0 passed, 1 failed", flush=True)
        return "broken off"
    return last


def main():
    bits, scenes = sys.argv[1], sys.argv[2:]
    if not scenes:
        # The main job first: without it there is no use in the others.
        scenes = sorted((file.stem for file in SCENES.glob("*.py") if file.stem != NO_SCENE),
                        key=lambda name: (name != "mainJob", name))
    table, good = [], True
    for scene in scenes:
        begin = time.monotonic()
        outcome = play(scene, bits)
        good = good and outcome.endswith(" 0 failed")
        table.append(f"   {bits} {scene:16} {time.monotonic() - begin:4.0f} s   {outcome}")
    print("\n".join(table))
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
