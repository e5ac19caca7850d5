"""The setup's lists by keyboard, clipboard and dropped files: rows go from list to list and come from a mail, are moved,
doubled and removed, files become entries or icons, and OK stores what is there."""

from play import play

from driver import settings
from driver.setup import Setup
from driver.waiting import poll

BOARD = [settings.button("Fit", "window fit"), settings.button("Ratsnest", "ratsnest")]
SCHEMATIC = [settings.button("ERC", "erc"), settings.button("Print", "print")]
MAIL = "C:\\work\\mail.txt"
ROW = settings.button("Redraw", "window;", tooltip="Draw the window anew")
LINES = ["Hello,", "", *(f"> 7{key}={ROW.get(key, '')}" for key in settings.KEYS), "", "Regards"]
BOARD_PAGE, SCHEMATIC_PAGE = 1, 2
PROGRAM, TARGET = "C:\\windows\\notepad.exe", "C:\\windows\\regedit.exe"
LINK, LINK_WITH_ARGUMENTS, DEAD_LINK = "C:\\work\\to regedit.lnk", "C:\\work\\with.lnk", "C:\\work\\dead.lnk"
LINKS = ((LINK, TARGET, ""), (LINK_WITH_ARGUMENTS, PROGRAM, MAIL), (DEAD_LINK, "C:\\work\\gone.exe", ""))
ICON = "C:\\kestrel\\sch.ico"


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
    with stage.bell() as bell:
        stage.screen.key("ctrl+v")
        checks.that(bell.rings(), "what holds no row is refused with a beep")
    checks.equal(setup.texts()[0], "Fit", "and changes nothing")


def make_links(stage):
    """Shortcuts, by the shell's own scripting."""
    script = "C:\\work\\links.js"
    lines = ['var shell = new ActiveXObject("WScript.Shell"), link;']
    for link, target, arguments in LINKS:
        place, target, arguments = (text.replace("\\", "\\\\") for text in (link, target, arguments))
        lines.append(f'link = shell.CreateShortcut("{place}"); link.TargetPath = "{target}"; link.Arguments = "{arguments}"; '
                     "link.Save();")
    stage.prefix.path(script).write_text("\n".join(lines), encoding="ascii")
    return stage.witness.exit_code(stage.witness.run(f"C:\\windows\\system32\\cscript.exe {script}")) == 0


def dropped(stage, checks, setup):
    checks.that(setup.turn_to(BOARD_PAGE), "the page of the board is turned to")
    setup.select(1)
    checks.that(setup.shows("Ratsnest"), "its second row is selected")
    place = setup.rows().place.middle
    refused = (("a text", [MAIL]), ("a folder", ["C:\\work"]), ("a shortcut with arguments", [LINK_WITH_ARGUMENTS]),
               ("a dead shortcut", [DEAD_LINK]), ("500 programs", [PROGRAM] * 500), ("a program and a text", [PROGRAM, MAIL]))
    for words, files in refused:
        with stage.bell() as bell:
            checks.that(stage.drop_files(files, place) and bell.rings(),
                        f"{words}, dropped on the list, is refused with a beep")
    checks.equal(setup.texts()[0], "Ratsnest", "and changes nothing")
    stage.drop_files([ICON], place)
    stage.drop_files([PROGRAM], place)
    checks.that(setup.shows("notepad.exe", PROGRAM), "a program becomes an entry with its name", setup.texts())
    stage.drop_files([LINK], place)
    checks.that(setup.shows("regedit.exe", TARGET), "a shortcut becomes its target", setup.texts())
    stage.picture("dropped", setup.form().place)


def moved(stage, checks, setup):
    setup.select(0)
    checks.that(setup.shows("Fit"), "the first row is selected")
    stage.screen.key("ctrl+Down", "ctrl+Down")
    stage.screen.key("Up")
    checks.that(setup.shows("notepad.exe"), "Ctrl+Down moves it behind two others", setup.texts())
    stage.screen.key("ctrl+Up")
    stage.screen.key("Down")
    checks.that(setup.shows("Ratsnest"), "Ctrl+Up moves a row in front of another", setup.texts())


def story(stage, checks):
    stage.prefix.path(MAIL).parent.mkdir()
    checks.that(make_links(stage), "there are shortcuts")
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
    dropped(stage, checks, setup)
    moved(stage, checks, setup)
    stage.picture("lists", setup.form().place)
    stage.screen.key("alt+o")
    checks.that(setup.gone(), "Alt+O closes the setup")
    names = [row["name"] for row in settings.rows(stage.settings(), "schematic")]
    checks.equal(names, ["Fit", "Redraw", "ERC", "ERC"], "the schematic's list is stored as it was shown")
    board_rows = settings.rows(stage.settings(), "board")
    checks.equal([(row["name"], row["path"], row["type"], row["icon"]) for row in board_rows],
                 [("notepad.exe", PROGRAM, "0", f"{PROGRAM},0"), ("Ratsnest", "ratsnest", "1", f"{ICON},0"),
                  ("Fit", "window fit", "1", ""), ("regedit.exe", TARGET, "0", f"{TARGET},0")],
                 "the board's has what was dropped, with its icons, in the order that it was given")
    stage.click_button(schematic, 1)
    poll(schematic.executed)
    checks.equal(schematic.executed(), ["window;"], "the button out of the mail types its command")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
