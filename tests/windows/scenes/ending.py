"""How Kestrel ends: a second start, EAGLE gone with and without autoToolbar."""

from play import play

from driver import settings
from driver.settings import button
from driver.waiting import poll, stays

# Of five ticks a second the 26th without EAGLE ends the program.
SURELY_ON, LATEST = 3, 12  # seconds
BOARD = [button("Fit", "window fit")]


def second_start(stage, checks, eagle):
    first = stage.start_kestrel(settings.made({"autoToolbar": 0}, board=BOARD))
    board = eagle.open("board", "C:\\work\\one.brd")
    checks.that(stage.toolbar(board), "a toolbar appears")
    second = stage.start_kestrel()
    checks.equal(stage.witness.exit_code(second), 0, "a second start ends itself")
    board = eagle.open("board", "C:\\work\\two.brd")
    checks.that(stage.toolbar(board), "the first goes on: a new board gets its toolbar")
    checks.equal(len(stage.toolbars(board)), 1, "one toolbar only")
    checks.equal(stage.look().top(class_name="#32770"), [], "nobody has shown a message")
    checks.that(stage.witness.runs(first), "the first is still there")
    return first


def without_option(stage, checks, kestrel):
    checks.that(stays(lambda: stage.witness.runs(kestrel), LATEST - SURELY_ON),
                "without autoToolbar Kestrel outlives EAGLE")


def with_option(stage, checks, kestrel):
    # Read at each tick: no new start is needed.
    stage.write_settings(settings.made({"autoToolbar": 1}, board=BOARD))
    eagle = stage.start_eagle("again")
    board = eagle.open("board", "C:\\work\\three.brd")
    checks.that(stage.toolbar(board), "EAGLE comes again: its board gets a toolbar")
    eagle.order("quit")
    stage.witness.exit_code(eagle.process)
    checks.that(stays(lambda: stage.witness.runs(kestrel), SURELY_ON),
                "with autoToolbar Kestrel stays for a while when EAGLE has gone")
    checks.equal(stage.witness.exit_code(kestrel, LATEST), 0, "then it ends")
    checks.that(poll(lambda: not stage.look().top(class_name="KestrelForm")), "with all its windows")


def story(stage, checks):
    eagle = stage.start_eagle()
    kestrel = second_start(stage, checks, eagle)
    eagle.order("quit")
    stage.witness.exit_code(eagle.process)
    without_option(stage, checks, kestrel)
    with_option(stage, checks, kestrel)


if __name__ == "__main__":
    play(__file__, story)
