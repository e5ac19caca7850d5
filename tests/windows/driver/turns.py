"""Plays programs that print checks and counts, several at a time. One that fails beside another gets a second try.

With real mouse and keyboard on a busy machine a race can be lost that is the display server's own. So what has failed
while others played beside it is played once more, alone, after all others. If all is well then, it counts as passed,
and a line that begins with FLAKY says what had failed: that is a defect of the piece, to be mended like any other.
"""

import concurrent.futures
import re
import signal
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

COUNTS = re.compile(r"^(\d+) passed, (\d+) failed\s*$|test cases:.*\|\s*(\d+) passed \|\s*(\d+) failed", re.M)
FAILURE = re.compile(r"^\s*FAIL\s+(.*)|^(\S+: (?:FATAL )?ERROR: .*)", re.M)  # of a scene, of a contract suite
SECOND_TRIES = 5  # where more than so many fail, it was no race


@dataclass(eq=False)  # the same may be played twice
class Piece:
    name: str
    command: list
    seconds: float = 20  # what it takes, roughly: the longest begin first
    longest: float = 240  # what it may take
    alone: bool = False  # nothing plays beside it
    pictures: Path | None = None  # where it leaves its pictures


@dataclass
class Outcome:
    printed: str
    seconds: float
    passed: int
    failed: int
    broken: str  # why its counts are not all

    @property
    def counts(self):
        return f"{self.passed} passed, {self.failed} failed" + (f" ({self.broken})" if self.broken else "")

    @property
    def first(self):
        """What failed first."""
        found = FAILURE.search(self.printed)
        return (found[1] or found[2]).strip() if found else self.broken


def _played(piece):
    begin = time.monotonic()
    print(f"-- {piece.name}: begins\n", end="", flush=True)  # in one piece, beside the other players'
    late = False
    with subprocess.Popen(piece.command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, errors="replace") as process:
        try:
            printed = process.communicate(timeout=piece.longest)[0]
        except subprocess.TimeoutExpired:
            # It ends as by Ctrl+C, so that it clears up behind itself.
            late = True
            process.send_signal(signal.SIGINT)
            printed = process.communicate()[0]
    counts = [next(pair for pair in (found[:2], found[2:]) if pair[0]) for found in COUNTS.findall(printed)]
    passed, failed = (int(number) for number in counts[-1]) if counts else (0, 0)
    broken = ""
    if late or not counts or (process.returncode != 0 and failed == 0):
        broken = "takes too long" if late else f"breaks off with code {process.returncode}"
        failed = max(failed, 1)
    return Outcome(printed, time.monotonic() - begin, passed, failed, broken)


def _told(piece, outcome):
    line = f"   FAIL  {piece.name} {outcome.broken}\n" if outcome.broken else ""
    print(f"{outcome.printed}{line}-- {piece.name}: {outcome.seconds:.0f} s, {outcome.counts}\n", end="", flush=True)


def _together(pieces, at_once):
    outcomes = {}
    with concurrent.futures.ThreadPoolExecutor(at_once) as players:
        playing = {players.submit(_played, piece): piece for piece in sorted(pieces, key=lambda piece: -piece.seconds)}
        for future in concurrent.futures.as_completed(playing):
            piece = playing[future]
            outcomes[piece] = future.result()
            _told(piece, outcomes[piece])
    return outcomes


def _keep_pictures(piece):
    """Those of the first try, which the second would write over."""
    if piece.pictures and piece.pictures.is_dir():
        kept = piece.pictures.with_name(piece.pictures.name + "-failed")
        subprocess.run(["rm", "-rf", kept], check=True)
        piece.pictures.rename(kept)


def play(pieces, at_once, second_try=True):
    """True if all went well, the second tries among them. Prints what each has printed when it ends, and a table."""
    beside = [piece for piece in pieces if not piece.alone]
    outcomes = _together(beside, at_once) | _together([piece for piece in pieces if piece.alone], 1)
    flaky = []
    lost = [piece for piece in beside if outcomes[piece].failed and len(beside) > 1 and at_once > 1]
    if second_try and len(lost) <= SECOND_TRIES:
        for piece in lost:
            print(f"-- {piece.name}: failed beside others, is played once more, alone\n", end="", flush=True)
            _keep_pictures(piece)
            again = _together([piece], 1)[piece]
            if not again.failed:
                flaky.append(f"   FLAKY: {piece.name}, {outcomes[piece].first}")
            outcomes[piece] = again
    print(*(f"   {piece.name:24} {outcomes[piece].seconds:4.0f} s   {outcomes[piece].counts}" for piece in pieces),
          *flaky, sep="\n")
    passed, failed = (sum(getattr(outcome, what) for outcome in outcomes.values()) for what in ("passed", "failed"))
    print(f"all together: {passed} passed, {failed} failed", flush=True)
    return failed == 0
