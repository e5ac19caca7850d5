"""The setup dialog, going on: both checks of OK, another language with unsaved edits, what the keyboard alone can do,
several lines pasted, and what is held while it is up."""

from play import play

from driver import settings
from driver.setup import ENGLISH, GERMAN, ROW, Setup
from driver.waiting import poll, stays

EAGLE = "C:\\eagle\\eagle.exe"
AUTOSTART = "Start EAGLE while starting Kestrel Bar"
PATH_WRONG = "The path of EAGLE.EXE is wrong. Please select correct path."
BOARD, SCHEMATIC = 1, 2  # pages
LINES = "C:\\lines.txt"
ODD = 'a "quoted" \xa7 = [board] ; no comment'


def boxed(stage, title):
    """The message box with this title; None if it is not up."""
    found = stage.look().top(title, "#32770")
    return found[0] if found else None


def wrong_path(stage, checks, setup, caption):
    """Presses OK and waits for the message about EAGLE's path."""
    stage.screen.key("Return")
    box = poll(lambda: boxed(stage, "Information"))
    if not checks.that(box, f"{caption}: the message about EAGLE's path comes up"):
        return
    checks.that(PATH_WRONG in [inner.text for inner in box.inside()], f"{caption}: with its text")
    checks.that(not setup.form().enabled, f"{caption}: it holds the setup")
    stage.picture(f"wrong-path-{caption.split()[0]}")
    stage.wait_for_focus(box.handle)
    stage.screen.key("Return")
    checks.that(poll(lambda: boxed(stage, "Information") is None), f"{caption}: Enter closes it")
    checks.that(setup.form(), f"{caption}: the setup stays")
    stage.wait_for_focus(setup.form().handle)


def checks_of_ok(stage, checks, setup, editor):
    setup.open(editor)
    setup.select(0)
    setup.shows("Fit")
    setup.fill(1, "{eaglepath}\\con.exe")
    before = stage.settings()
    checks.that(setup.turn_to(0), "Ctrl+Tab leads to the general page")
    setup.press(AUTOSTART)
    setup.fill(0, "C:\\nowhere\\eagle.exe")
    wrong_path(stage, checks, setup, "first check")
    after = stage.settings()
    checks.equal(settings.value(after, "toolbar", "autoeagle"), "1", "first check: the options are written")
    checks.equal(settings.value(after, "toolbar", "eaglepath"), settings.value(before, "toolbar", "eaglepath"),
                 "first check: EAGLE's path is not")
    checks.equal(settings.rows(after, "board"), settings.rows(before, "board"), "first check: nor are the lists")

    setup.press(AUTOSTART)
    wrong_path(stage, checks, setup, "second check")
    after = stage.settings()
    checks.equal(settings.value(after, "toolbar", "eaglepath"), "C:\\nowhere\\eagle.exe", "second check: the path is written")
    checks.equal(settings.rows(after, "board")[0]["path"], "{eaglepath}\\con.exe", "second check: so are the lists")

    setup.fill(0, EAGLE)
    stage.screen.key("Return")
    checks.that(setup.gone(), "with the path put right Enter closes the setup")
    checks.equal(settings.value(stage.settings(), "toolbar", "eaglepath"), EAGLE, "and EAGLE's path is stored")


def language(stage, checks, setup, editor):
    """Another language with an edit that has not been saved."""
    setup.open(editor)
    setup.select(0)
    setup.shows("Fit")
    setup.fill(0, "Unsaved")
    setup.turn_to(0)
    stage.screen.click(*setup.lists()[-1].place.middle)
    poll(lambda: stage.look().top(class_name="ComboLBox"))
    stage.screen.key("Down", "Return")
    checks.that(poll(lambda: setup.form(GERMAN)), "a language that is chosen shows at once")
    checks.that("Globale Optionen" in setup.captions(), "on the whole page", setup.captions())
    checks.equal(settings.value(stage.settings(), "global", "language"), "0", "and is in the settings at once")
    setup.turn_to(BOARD)
    setup.select(0)
    checks.that(setup.shows("Unsaved"), "an edit that has not been saved is still there", setup.texts())
    checks.that("EAGLE Befehl" in setup.captions(), "with the German label of an EAGLE command")
    stage.screen.key("Escape")
    checks.that(setup.gone(), "Esc closes the setup")
    checks.equal(settings.rows(stage.settings(), "board")[0]["name"], "Fit", "Cancel drops the edit")
    checks.equal(len(stage.toolbar(editor).buttons), 3, "the toolbar keeps its buttons")
    setup.open(editor)
    checks.that(setup.form(GERMAN), "the next opening is in German")
    setup.turn_to(0)
    stage.screen.click(*setup.lists()[-1].place.middle)
    poll(lambda: stage.look().top(class_name="ComboLBox"))
    stage.screen.key("Up", "Return")
    checks.that(poll(lambda: setup.form(ENGLISH)), "and back")
    stage.screen.key("Escape")
    setup.gone()


def tab_order(stage, checks, setup, editor):
    """The Tab key goes round the board page as the eye does."""
    setup.open(editor)
    setup.select(0)
    setup.shows("Fit")
    fields, rows = setup.fields(), setup.rows()
    icon = setup.button("Change Icon")
    actions = [setup.button(caption) for caption in ("Add external Command", "Add EAGLE Command", "Add Separator",
                                                     "Remove Entry")] + setup.arrows()
    beneath = [setup.button(caption) for caption in ("Help", "Cancel", "Ok")]
    # The question's field and the option buttons of this page are disabled for an EAGLE command.
    stops = [*fields[:3], icon, rows, *actions, *beneath, setup.strip()]
    stage.screen.click(*fields[0].place.middle)
    for stop in stops[1:] + stops[:1]:
        stage.screen.key("Tab")
        if not checks.that(poll(lambda stop=stop: stage.look().focus == stop.handle, 3), f"the Tab key leads on to {stop.text!r}",
                           stage.look().focus):
            break
    stage.screen.key("shift+Tab", "Right")
    checks.that(poll(lambda: setup.page() == 2), "on the tabs an arrow key turns the page")
    checks.equal(stage.look().focus, setup.strip().handle, "and the tabs keep the keyboard")
    stage.screen.key("Left")
    poll(lambda: setup.page() == 1)
    stage.screen.key("alt+m")
    checks.that(poll(lambda: stage.look().focus == fields[1].handle), "a label's mnemonic leads to its field")
    for names, number in ((("alt+p",), 0), (("alt+t",), 2)):
        stage.screen.key(*names)
        checks.that(poll(lambda number=number: stage.look().focus == fields[number].handle), f"{names[0]} too")
    stage.screen.click(rows.client.left + 40, rows.client.top + ROW // 2)
    stage.screen.key("End")
    checks.that(setup.shows("Tool"), "keys select a row", setup.texts())
    stage.screen.key("alt+v")
    checks.that(setup.shows("", "", "", ""), "Alt+V removes the entry")
    stage.screen.key("Escape")
    setup.gone()
    checks.equal(len(settings.rows(stage.settings(), "board")), 3, "Esc takes it back")


def paste(stage, checks, setup, editor):
    """Of several lines in the clipboard a field takes the first one, whatever characters are in it."""
    stage.prefix.path(LINES).write_bytes(f"{ODD}\r\n[board]\r\n1name=other\r\n".encode("cp1252"))
    process = stage.witness.run(f"C:\\windows\\notepad.exe {LINES}")
    notepad = poll(lambda: stage.look().top("lines.txt"))
    if not checks.that(notepad, "another program has the lines"):
        return
    # The window manager may leave the keyboard where it is when a new window comes.
    stage.screen.click(*notepad[0].place.middle)
    stage.wait_for_focus(notepad[0].handle)
    stage.screen.key("ctrl+a", "ctrl+x")
    checks.that(poll(lambda: [child.text for child in stage.look().top("lines.txt")[0].inside() if child.class_name == "Edit"] == [""]),
                "they are cut out there")
    stage.witness.order("terminate", process)  # it would ask whether to save
    checks.that(poll(lambda: not stage.look().top("lines.txt")), "and it has gone")
    setup.open(editor)
    setup.select(0)
    setup.shows("Fit")
    for number in range(3):
        stage.screen.click(*setup.fields()[number].place.middle)
        stage.screen.key("ctrl+a", "ctrl+v")
    checks.that(setup.shows(ODD, ODD, ODD), "three fields take the first line", setup.texts())
    setup.turn_to(0)
    stage.screen.click(*setup.fields()[0].place.middle)
    stage.screen.key("ctrl+a", "ctrl+v")
    checks.that(setup.shows(ODD), "so does the field of EAGLE's path", setup.texts())
    stage.screen.key("Return")
    checks.that(setup.gone(), "Enter closes the setup")
    after = stage.settings()
    rows = settings.rows(after, "board")
    checks.equal([rows[0][key] for key in ("name", "path", "tooltip")], [ODD] * 3, "the line is in the settings as it stands")
    checks.equal(settings.value(after, "toolbar", "eaglepath"), ODD, "as EAGLE's path too")
    checks.equal(len(rows), 3, "no line has become a row of its own")


def held(stage, checks, setup, editor, other, eagle):
    """The other toolbars are held, the tracker goes on."""
    setup.open(editor)
    stage.screen.click(*stage.toolbar(other).buttons[-1].place.middle)
    checks.that(stays(lambda: setup.page() == BOARD, 0.5), "the Config button of another toolbar is held")
    library = eagle.open("library", "C:\\work\\parts.lbr")
    checks.that(stage.toolbar(library), "a new window gets its toolbar while the setup is up")
    library.close()
    # The window manager closes what is in front.
    form = setup.form()
    stage.screen.click(form.client.left + 30, form.client.bottom - 10)
    checks.that(stage.wait_for_focus(form.handle), "a click brings the setup to the front")
    stage.screen.key("alt+F4")
    checks.that(setup.gone(), "Alt+F4 closes the setup")
    checks.that(setup.open(other), "now the other toolbar opens it")
    checks.equal(setup.page(), SCHEMATIC, "on the page of its own list")
    stage.screen.key("Escape")
    setup.gone()


def story(stage, checks):
    eagle = stage.start_eagle()
    editor = eagle.open("board", "C:\\work\\demo.brd")
    editor.place(0, 0, 640, 440)
    other = eagle.open("schematic", "C:\\work\\demo.sch")
    other.place(0, 940, 640, 220)
    rows = [settings.button("Fit", "window fit"), settings.button("-" * 34, "", settings.SEPARATOR),
            settings.button("Tool", "C:\\kestrel\\kestrel.exe", settings.PROGRAM)]
    kestrel = stage.start_kestrel("[global]\nlanguage=10000\n" + settings.made(board=rows))
    setup = Setup(stage)
    tab_order(stage, checks, setup, editor)
    language(stage, checks, setup, editor)
    checks_of_ok(stage, checks, setup, editor)
    held(stage, checks, setup, editor, other, eagle)
    paste(stage, checks, setup, editor)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
