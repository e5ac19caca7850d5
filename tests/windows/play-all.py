#!/usr/bin/env python3
"""Plays the scenes, two at a time: play-all.py win32|win64 [SCENE]...

Each has a display, a prefix and files of its own, and waits most of its time. What a scene prints, its checks and its
counts, comes when it has ended; a scene without counts has broken off and counts as one failure. The table at the end
says how long each took. The exit code tells whether all went well.
"""

import concurrent.futures
import signal
import subprocess
import sys
import time
from pathlib import Path

SCENES = Path(__file__).resolve().parent / "scenes"
NO_SCENE = "play"  # what the scenes share
LONGEST = 240  # seconds for a scene
AT_ONCE = 2
ALONE = {"manyWindows"}  # its hundreds of windows keep the machine busy by themselves


def play(scene, bits):
    """Gives what the scene has printed, and how long it took."""
    begin = time.monotonic()
    print(f"-- {scene}, {bits}: begins\n", end="", flush=True)  # in one piece, beside the other player's
    with subprocess.Popen([sys.executable, SCENES / f"{scene}.py", bits], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True) as process:
        try:
            printed = process.communicate(timeout=LONGEST)[0]
        except subprocess.TimeoutExpired:
            # It ends as by Ctrl+C, so that it clears up behind itself.
            process.send_signal(signal.SIGINT)
            printed = process.communicate()[0]
    return printed, time.monotonic() - begin


def outcomeOf(printed, seconds):
    """The counts that a scene ends with; one failure if there are none, and what to print about that."""
    last = printed.rstrip().rpartition("\n")[2].strip()
    if last.endswith(" failed"):
        return last, ""
    why = "takes too long" if seconds >= LONGEST else "breaks off"
    return "broken off", f"   FAIL  the scene {why}\n0 passed, 1 failed\n"


def main():
    bits, scenes = sys.argv[1], sys.argv[2:]
    if not scenes:
        # The main job first: without it there is no use in the others.
        scenes = sorted((file.stem for file in SCENES.glob("*.py") if file.stem != NO_SCENE),
                        key=lambda name: (name != "mainJob", name))
    table, good = {}, True
    together = [scene for scene in scenes if scene not in ALONE]
    for at_once, part in ((AT_ONCE, together), (1, [scene for scene in scenes if scene in ALONE])):
        with concurrent.futures.ThreadPoolExecutor(at_once) as players:
            played = {players.submit(play, scene, bits): scene for scene in part}
            for future in concurrent.futures.as_completed(played):
                printed, seconds = future.result()
                outcome, failure = outcomeOf(printed, seconds)
                print(printed + failure, end="", flush=True)
                good = good and outcome.endswith(" 0 failed")
                table[played[future]] = f"   {bits} {played[future]:16} {seconds:4.0f} s   {outcome}"
    print("\n".join(table[scene] for scene in scenes))
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
