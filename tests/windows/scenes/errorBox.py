"""While the runtime's error box is up over EAGLE: it has the keyboard, the toolbars go on being painted, nothing of the
program runs, and the session can end."""

from play import play

from driver import settings
from driver.settings import button
from driver.setup import Setup
from driver.waiting import poll, stays

LOG_OFF = "C:\\windows\\system32\\wineboot.exe --end-session"
GOOD = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0}, board=[button("Fit", "window fit")])
BROKEN = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0}, board=[button("Fit", "window fit", dialog="ask")])


def message(stage):
    found = stage.look().top(class_name="#32770")
    return found[0] if found else None


def fail(stage, checks, board):
    """The settings are broken by hand while the setup is open; the toolbar reads them when it closes. Gives the box."""
    setup = Setup(stage)
    checks.that(setup.open(board), "the setup is open")
    stage.write_settings(BROKEN)
    stage.screen.key("Escape")
    box = poll(lambda: message(stage))
    checks.that(box and stage.wait_for_focus(box.handle), "the error box is in front and has the keyboard")
    return box


def lives(stage, checks, board, box):
    board.place(100, 100, 640, 440)
    checks.that(stage.painted(board), "the toolbar goes along with EAGLE's window and is painted")
    before = len(board.executed())
    stage.click_button(board, 0)
    checks.that(stays(lambda: len(board.executed()) == before, 1), "its button does nothing")
    checks.that(stage.look().windows.get(box.handle), "the box is still up")
    checks.that(int(stage.witness.order("ping", box.handle, 3000)) < 1000, "the program answers at once")
    stage.picture("error-box")


def story(stage, checks):
    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    board.place(0, 0, 640, 440)
    kestrel = stage.start_kestrel(GOOD)
    checks.that(stage.toolbar(board), "Kestrel is there")
    box = fail(stage, checks, board)
    lives(stage, checks, board, box)
    stage.screen.click(*next(inner for inner in box.inside() if inner.class_name == "Button").place.middle)
    checks.equal(stage.witness.exit_code(kestrel), 0, "OK ends the program")

    kestrel = stage.start_kestrel(GOOD)
    checks.that(stage.toolbar(board), "started again it is there")
    fail(stage, checks, board)
    stage.witness.run(LOG_OFF)
    checks.that(stage.witness.exit_code(kestrel) is not None, "the session can end under the box")


if __name__ == "__main__":
    play(__file__, story)
