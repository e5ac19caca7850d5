"""The setup's lists by keyboard and clipboard: rows go from list to list and come from a mail, are moved, doubled and removed,
and OK stores what is there; the help key."""

from play import play

from driver import settings
from driver.setup import Setup
from driver.waiting import poll, stays

BOARD = [settings.button("Fit", "window fit"), settings.button("Ratsnest", "ratsnest")]
SCHEMATIC = [settings.button("ERC", "erc"), settings.button("Print", "print")]
MAIL = "C:\\work\\mail.txt"
ROW = settings.button("Redraw", "window;", tooltip="Draw the window anew")
LINES = ["Hello,", "", *(f"> 7{key}={ROW.get(key, '')}" for key in settings.KEYS), "", "Regards"]
BOARD_PAGE, SCHEMATIC_PAGE = 1, 2


def from_list_to_list(stage, checks, setup):
    checks.that(setup.turn_to(BOARD_PAGE), "the page of the board is turned to")
    setup.select(0)
    checks.that(setup.shows("Fit", "window fit"), "a click selects a row of its list")
    stage.screen.key("ctrl+c")
    checks.that(setup.turn_to(SCHEMATIC_PAGE), "and that of the schematic")
    setup.select(0)
    checks.that(setup.shows("ERC", "erc"), "a click selects a row of its list")
    stage.screen.key("ctrl+v")
    checks.that(setup.shows("Fit", "window fit"), "Ctrl+V adds the board's row and selects it")
    stage.screen.key("ctrl+Up")
    stage.screen.key("Down")
    checks.that(setup.shows("ERC", "erc"), "Ctrl+Up moves it in front of the other")
    stage.screen.key("ctrl+d")
    stage.screen.key("Down")
    checks.that(setup.shows("Print", "print"), "Ctrl+D doubles a row, the next is behind the two")
    stage.screen.key("Delete")
    checks.that(setup.shows("ERC", "erc"), "Del removes it and selects the one that is left at the end")


def from_mail(stage, checks, setup):
    stage.copy_text(MAIL, LINES)
    form = setup.form()
    stage.wait_for_focus(form.handle)
    setup.select(0)
    checks.that(setup.shows("Fit"), "back in the setup a row is selected")
    stage.screen.key("ctrl+v")
    checks.that(setup.shows("Redraw", "window;", "Draw the window anew"), "a row comes out of a mail with all its fields",
                setup.texts())
    stage.copy_text(MAIL, ["Hello,", "", "there is no row in this."])
    stage.wait_for_focus(form.handle)
    setup.select(0)
    checks.that(setup.shows("Fit"), "a row is selected")
    stage.screen.key("ctrl+v")
    checks.that(stays(lambda: setup.texts()[0] == "Fit", 0.5), "what holds no row changes nothing")


def help_key(stage, checks, setup):
    stage.screen.key("F1")
    window = poll(lambda: [found for found in stage.look().top() if found.class_name == "HH Parent"])
    if checks.that(window, "F1 opens the help"):
        stage.wait_for_focus(window[0].handle)
        stage.screen.key("alt+F4")
        poll(lambda: not [found for found in stage.look().top() if found.class_name == "HH Parent" and found.visible])
    setup.select(0)
    checks.that(stage.wait_for_focus(setup.form().handle), "the setup goes on")


def story(stage, checks):
    stage.prefix.path(MAIL).parent.mkdir()
    eagle = stage.start_eagle()
    board = eagle.open("board", "C:\\work\\demo.brd")
    schematic = eagle.open("schematic", "C:\\work\\demo.sch")
    board.place(0, 0, 640, 440)
    schematic.place(660, 0, 640, 440)
    kestrel = stage.start_kestrel("[global]\nlanguage=10000\n" + settings.made(board=BOARD, schematic=SCHEMATIC))
    setup = Setup(stage)
    checks.that(setup.open(schematic), "Config opens the setup")
    from_list_to_list(stage, checks, setup)
    from_mail(stage, checks, setup)
    help_key(stage, checks, setup)
    stage.picture("lists", setup.form().place)
    stage.screen.key("alt+o")
    checks.that(setup.gone(), "Alt+O closes the setup")
    names = [row["name"] for row in settings.rows(stage.settings(), "schematic")]
    checks.equal(names, ["Fit", "Redraw", "ERC", "ERC"], "the schematic's list is stored as it was shown")
    checks.equal([row["name"] for row in settings.rows(stage.settings(), "board")], ["Fit", "Ratsnest"],
                 "and the board's as it was")
    stage.click_button(schematic, 1)
    poll(schematic.executed)
    checks.equal(schematic.executed(), ["window;"], "the button out of the mail types its command")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
