"""A toolbar as a window: tool tips, dragging its frame and its title bar."""

from play import play

from driver import settings
from driver.desktop import Rect
from driver.waiting import poll, stays

ROW = 22
EDGE = 2  # pixels from the outer edge into the frame
CAPTION = 12


def tip(stage):
    found = stage.look().top(class_name="tooltips_class32")
    return found[0].place if found else None


def tool_tips(stage, checks, toolbar):
    widths = []
    for number in (0, 5):  # "Fit the drawing into the window", "Check the design rules"
        button = toolbar.buttons[number].place
        # Away first: a tip goes when the mouse does, and the next one is another.
        stage.screen.point(button.left, toolbar.form.place.bottom + 100)
        checks.that(poll(lambda: not tip(stage)), "no tool tip away from the toolbar")
        stage.screen.point(*button.middle)
        shown = poll(lambda: tip(stage))
        if checks.that(shown, "a tool tip comes when the mouse rests on a button"):
            widths.append(shown.width)
            below = 0 <= shown.top - button.top <= 3 * ROW and shown.left <= button.right + ROW and shown.right >= button.left
            checks.that(below, "it stands at the button", (shown, button))
    stage.picture("tip")
    checks.that(len(widths) == 2 and widths[0] > widths[1], "a longer text has a wider tip", widths)


def rows_of(toolbar):
    return len({button.place.top for button in toolbar.buttons})


def drag_frame(stage, board, start, by):
    """Drags from a place of the frame; gives the toolbar before, and once it has a new, fitting shape and rests."""
    before = stage.toolbar(board)
    x, y = start(before.form.place)
    stage.screen.drag((x, y), (x + by[0], y + by[1]))

    def reshaped():
        now = stage.toolbar(board)
        if not now or now.form.place == before.form.place:
            return None
        rests = stays(lambda: stage.toolbars(board)[0].form.place == now.form.place, 0.3)
        return now if rests else None
    return before, poll(reshaped)


def right_edge(place):
    return place.right - EDGE, place.middle[1]


def top_edge(place):
    return place.middle[0], place.top + EDGE - 1


def wrapping(stage, checks, board):
    before, after = drag_frame(stage, board, right_edge, (-50, 0))
    if checks.that(after, "narrower: the height follows the rows"):
        checks.that(rows_of(after) > rows_of(before), "narrower: there are more rows")
        checks.equal((after.form.place.left, after.form.place.top), (before.form.place.left, before.form.place.top),
                     "narrower: the left upper corner stays")
    stage.picture("narrow")
    before, after = drag_frame(stage, board, right_edge, (220, 0))
    if checks.that(after, "wider: the height follows the rows"):
        checks.that(rows_of(after) < rows_of(before), "wider: there are fewer rows")
        checks.that(after.form.place.height < before.form.place.height, "wider: it is less high")
        checks.equal(after.buttons[-1].place.top, max(button.place.top for button in after.buttons),
                     "\"Config\" wraps with the rest and is the last")
    stage.picture("wide")


def move(stage, board, right, down):
    """Drags the toolbar by its title bar; tells whether it comes as far as the mouse and keeps its size."""
    before = stage.toolbar(board).form.place
    x, y = before.left + CAPTION, before.top + CAPTION
    stage.screen.drag((x, y), (x + right, y + down))
    wanted = Rect(before.left + right, before.top + down, before.right + right, before.bottom + down)
    return poll(lambda: stage.toolbar(board).form.place == wanted)


def moving(stage, checks, board):
    if checks.that(move(stage, board, -300, 120), "dragged by its title bar it moves as far as the mouse and keeps its size"):
        checks.that(stage.painted(board), "it is painted there")
    stage.picture("moved")
    before, after = drag_frame(stage, board, top_edge, (0, -40))
    if checks.that(after, "dragged by its top frame it gets its height back"):
        checks.equal(after.form.place.height, before.form.place.height, "its height is as before")


def story(stage, checks):
    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    board.place(200, 100, 1000, 700)
    kestrel = stage.start_kestrel(settings.start_set())
    toolbar = stage.toolbar(board)
    checks.that(toolbar, "the toolbar appears and shows all its rows")
    tool_tips(stage, checks, toolbar)
    # Room at the right for a wider toolbar.
    checks.that(move(stage, board, -250, 0), "the toolbar is moved to the left")
    wrapping(stage, checks, board)
    moving(stage, checks, board)
    stage.click_button(board, 0)
    poll(board.executed)
    checks.equal(board.executed(), ["window fit"], "after all that a click still types the command")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
