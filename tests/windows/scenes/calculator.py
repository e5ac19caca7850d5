"""The calculator in an editor window: real keys and clicks in edit fields that stand in another program's window."""

from play import play

from driver import settings
from driver.waiting import poll, stays

LEFT, RIGHT = 0, 1
SETTINGS = "[Unit]\nVisible=1\nLeftUnit=Inch\nRightUnit=um\nLeftAccuracy=@\nRightAccuracy=0.###\n"


def fields(stage, editor):
    """The two number fields in the editor window, from the left; empty if there is no calculator."""
    window = stage.look(editor).windows[editor.handle]
    frames = [child for child in window.children if child.class_name == "KestrelFrame"]
    inside = [child for frame in frames for child in frame.children if child.class_name == "Edit"]
    return sorted(inside, key=lambda field: field.place.left)


def texts(stage, editor):
    return [field.text for field in fields(stage, editor)]


def focused(stage, editor, side):
    return poll(lambda: stage.look().focus == fields(stage, editor)[side].handle)


def converts(stage, checks, board):
    stage.screen.click(*fields(stage, board)[LEFT].place.middle)
    checks.that(focused(stage, board, LEFT), "a click gives the left field the keyboard")
    stage.screen.type("100")
    checks.that(poll(lambda: texts(stage, board) == ["100", "2.54"]),
                "100 typed over the old value shows 2.54, in mil and mm whatever the settings say", texts(stage, board))
    stage.screen.click(*fields(stage, board)[RIGHT].place.middle)
    checks.that(focused(stage, board, RIGHT), "a click gives the right field the keyboard")
    stage.screen.type("1")
    checks.that(poll(lambda: texts(stage, board) == ["39.3700787401575", "1"]), "1 on the right shows its mils on the left",
                texts(stage, board))
    stage.screen.type(",5")
    checks.that(poll(lambda: texts(stage, board) == ["59.0551181102362", "1.5"]), "a comma that is typed is a dot",
                texts(stage, board))
    stage.picture("converted")
    stage.screen.key("ctrl+a")
    stage.screen.type("0.24")
    # Computed with more digits than a double has, the last one would be another.
    checks.that(poll(lambda: texts(stage, board) == ["9.44881889763779", "0.24"]), "the result is right to its last digit",
                texts(stage, board))


def selects(stage, checks, board):
    stage.screen.click(*fields(stage, board)[RIGHT].place.middle, 3)
    menu = poll(lambda: stage.look().top(class_name="#32768"))
    checks.that(menu, "the right button opens the field's own menu")
    stage.picture("context-menu")
    # The first click closes the menu, the second is the field's.
    stage.screen.click(*stage.command_field(board).place.middle)
    poll(lambda: not stage.look().top(class_name="#32768"))
    stage.screen.click(*stage.command_field(board).place.middle)
    checks.that(stage.wait_for_focus(board.handle), "EAGLE has the keyboard again")
    stage.screen.click(*fields(stage, board)[RIGHT].place.middle)
    checks.that(focused(stage, board, RIGHT), "then the field again")
    stage.screen.type("2")
    checks.that(poll(lambda: texts(stage, board)[RIGHT] == "2"), "after a click the next key replaces the value",
                texts(stage, board))


def tabs(stage, checks, board):
    stage.screen.key("ctrl+a")
    stage.screen.type("1.23456")
    stage.screen.key("Tab")
    checks.that(focused(stage, board, LEFT), "Tab goes on to the left field")
    checks.that(stays(lambda: texts(stage, board)[RIGHT] == "1.23456", 0.5),
                "which it does not compute back into the field that it has left", texts(stage, board))
    stage.screen.key("Tab")
    checks.that(focused(stage, board, RIGHT), "and back to the right one")
    stage.screen.key("shift+Tab")
    checks.that(focused(stage, board, LEFT), "Shift and Tab go the other way")
    checks.equal(board.executed(), [], "none of that was heard by EAGLE")


def back_to_eagle(stage, checks, board):
    stage.screen.click(*stage.command_field(board).place.middle)
    checks.that(poll(lambda: stage.command_field_focused(board)), "a click gives EAGLE's command field the keyboard")
    before = texts(stage, board)
    stage.screen.type("window fit")
    stage.screen.key("Return")
    checks.that(poll(lambda: board.executed() == ["window fit"]), "and what is typed goes to EAGLE", board.executed())
    checks.equal(texts(stage, board), before, "the calculator stays as it was")


def each_its_own(stage, checks, eagle, board):
    schematic = eagle.open("schematic", "C:\\work\\demo.sch")
    schematic.place(100, 620, 900, 400)
    checks.that(poll(lambda: fields(stage, schematic)), "a schematic has a calculator")
    before = texts(stage, board)
    stage.screen.click(*fields(stage, schematic)[LEFT].place.middle)
    focused(stage, schematic, LEFT)
    stage.screen.type("1e3")
    checks.that(poll(lambda: texts(stage, schematic) == ["1e3", "25.4"]), "it computes for itself",
                texts(stage, schematic))
    checks.equal(texts(stage, board), before, "each calculator has its own values")
    stage.screen.key("ctrl+a")
    stage.screen.type("--5")
    checks.that(poll(lambda: texts(stage, schematic) == ["--5", "0"]), "what is no number is 0", texts(stage, schematic))


def overflow(stage, checks, board, kestrel):
    stage.screen.click(*fields(stage, board)[LEFT].place.middle)
    focused(stage, board, LEFT)
    stage.screen.type("1e999")
    message = poll(lambda: stage.look().top("Kestrel", "#32770"))
    checks.that(message, "a number beyond all range is the runtime's error")
    if message:
        stage.wait_for_focus(message[0].handle)
        stage.picture("overflow", message[0].place)
        stage.screen.key("Return")
    checks.equal(stage.witness.exit_code(kestrel), 0, "which ends the program")
    checks.that(stage.witness.answers(board.handle, 5), "EAGLE goes on")


def story(stage, checks):
    eagle = stage.start_eagle()
    board = eagle.open("board", "C:\\work\\demo.brd")
    board.place(100, 100, 900, 500)
    kestrel = stage.start_kestrel(settings.made({"autoToolbar": 0}) + SETTINGS)
    checks.that(poll(lambda: texts(stage, board) == ["0", "0"]), "a calculator with 0 on both sides stands in the board")
    stage.toolbar(board)
    converts(stage, checks, board)
    selects(stage, checks, board)
    tabs(stage, checks, board)
    back_to_eagle(stage, checks, board)
    each_its_own(stage, checks, eagle, board)
    overflow(stage, checks, board, kestrel)


if __name__ == "__main__":
    play(__file__, story)
