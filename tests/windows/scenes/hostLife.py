"""EAGLE comes and goes, by itself and by force, and does not answer for a while: Kestrel goes on."""

from play import play

from driver import settings
from driver.settings import button
from driver.waiting import poll

HANG = 15  # seconds
WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON = 0x200, 0x201, 0x202, 1
IN_TIME = 6  # seconds in which a toolbar has to come while another EAGLE hangs


def clicks(stage, checks, editor, words):
    stage.click_button(editor, 0)
    poll(editor.executed)
    checks.equal(editor.executed(), ["window fit"], f"{words}: a click types the command")


def closed_and_opened(stage, checks, eagle):
    board = eagle.open("board", "C:\\work\\one.brd")
    checks.that(stage.toolbar(board), "the first board has a toolbar")
    board.close()
    checks.that(poll(lambda: board.handle not in stage.look().windows), "it closes with the toolbar in it")
    board = eagle.open("board", "C:\\work\\two.brd")
    checks.that(stage.toolbar(board), "a board opened afterwards has one, too")
    clicks(stage, checks, board, "board opened afterwards")
    behind = board
    board = eagle.open("board", "C:\\work\\three.brd")
    checks.that(stage.toolbar(board), "so has a second board beside it")
    checks.equal(len(stage.toolbars(behind)), 1, "the one behind keeps its own")


def killed(stage, checks, eagle):
    stage.witness.order("terminate", eagle.process)
    checks.that(stage.witness.exit_code(eagle.process) is not None, "EAGLE is killed with toolbars in its windows")
    eagle = stage.start_eagle("again")
    board = eagle.open("board", "C:\\work\\four.brd")
    checks.that(stage.toolbar(board), "a new EAGLE gets toolbars")
    clicks(stage, checks, board, "new EAGLE")
    return eagle, board


def post_click(stage, toolbar):
    button = toolbar.buttons[0].place
    place = (button.middle[1] - toolbar.bar.client.top) << 16 | (button.middle[0] - toolbar.bar.client.left)
    for message, keys in ((WM_MOUSEMOVE, 0), (WM_LBUTTONDOWN, MK_LBUTTON), (WM_LBUTTONUP, 0)):
        stage.witness.order("post", toolbar.bar.handle, message, keys, place)


def hung(stage, checks, eagle, board):
    other = stage.start_eagle("other")
    order = eagle.hang(HANG)
    # A click in the window that hangs must not hold Kestrel. Under Wine the mouse comes by way of the host, which does
    # not hear it: the click is posted. Where its keys go is left open.
    post_click(stage, stage.toolbars(board)[0])
    beside = other.open("board", "C:\\work\\five.brd")
    checks.that(stage.toolbar(beside, IN_TIME), "while one EAGLE hangs, a new board of another gets its toolbar")
    checks.that(not eagle.answered(order), "all that before the first answers again")
    schematic = other.open("schematic", "C:\\work\\five.sch")
    checks.that(stage.toolbar(schematic, IN_TIME), "and so does a schematic")
    checks.that(not eagle.answered(order), "before the first answers again")
    clicks(stage, checks, schematic, "beside a hung EAGLE")
    eagle.answer(order, HANG + 20)
    checks.equal(len(stage.toolbars(board)), 1, "the EAGLE that hung still has its toolbar")
    board.to_front()
    before = len(board.executed())
    stage.click_button(board, 0)
    checks.that(poll(lambda: "window fit" in board.executed()[before:]), "which works again")


def story(stage, checks):
    eagle = stage.start_eagle()
    kestrel = stage.start_kestrel(settings.made(board=[button("Fit", "window fit")],
                                                schematic=[button("Fit", "window fit")]))
    closed_and_opened(stage, checks, eagle)
    eagle, board = killed(stage, checks, eagle)
    hung(stage, checks, eagle, board)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")
    checks.equal(stage.look().top("Run-time error"), [], "no error has been shown")


if __name__ == "__main__":
    play(__file__, story)
