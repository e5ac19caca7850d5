"""Buttons that start a program."""

import shutil

from play import play

from driver import settings
from driver.settings import button
from driver.waiting import poll

NOTEPAD = "C:\\windows\\notepad.exe"
BLANKS = "C:\\my tools\\note pad.exe"
BUTTONS = {
    "program": button("Notes", NOTEPAD, settings.PROGRAM),
    "missing": button("Missing", "C:\\no\\such.exe", settings.PROGRAM),
    "own arguments": button("Own arguments", NOTEPAD + " C:\\work\\a.txt", settings.PROGRAM),
    "blanks": button("Blanks", BLANKS, settings.PROGRAM),
    "argument": button("Argument", NOTEPAD, settings.PROGRAM, settings.INPUT_BOX, param="Which file?"),
}


def run_by(stage, name, count):
    return poll(lambda: len(stage.look().running(name)) == count)


def story(stage, checks):
    for path in (NOTEPAD, BLANKS):
        stage.prefix.path(path).parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(stage.prefix.path(NOTEPAD), stage.prefix.path(BLANKS))
    stage.prefix.path("C:\\work").mkdir()
    stage.prefix.path("C:\\work\\a.txt").write_text("a\n")

    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    board.place(800, 20, 790, 560)
    kestrel = stage.start_kestrel(settings.made(board=BUTTONS.values()))

    def click(name):
        stage.click_button(board, list(BUTTONS).index(name))

    click("program")
    checks.that(run_by(stage, "notepad.exe", 1), "a click starts the program")
    checks.that(poll(lambda: stage.look().top("Notepad")), "its window appears")
    stage.picture("started")

    # The clicks are served one after the other: once the last program runs, those before have had their turn.
    click("missing")
    click("own arguments")
    click("blanks")
    checks.that(run_by(stage, "note pad.exe", 1), "a path with a blank needs no quotes")
    # Coming up later, its window would take the keyboard from what the next click brings.
    poll(lambda: len(stage.look().top("Notepad")) == 2)
    desktop = stage.look()
    checks.equal(len(desktop.running("notepad.exe")), 1, "a path with arguments of its own starts nothing")
    checks.equal(desktop.top(class_name="#32770"), [], "a missing program gives no message")

    click("argument")
    box = poll(lambda: stage.look().top("Input Parameter"))
    checks.that(box and stage.wait_for_focus(box[0].handle), "a program button can ask for its argument")
    stage.screen.type("C:\\work\\a.txt")
    stage.screen.key("Return")
    checks.that(run_by(stage, "notepad.exe", 2), "the confirmed argument starts the program")
    checks.that(poll(lambda: stage.look().top("a.txt")), "it has got the argument")
    checks.equal(board.executed(), [], "nothing was typed into EAGLE")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
