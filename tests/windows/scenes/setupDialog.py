"""The setup dialog with mouse and keyboard: a list built from nothing, an icon from a real file, OK, the toolbar built anew,
the program started again."""

from play import play

from driver import settings
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll

TOOL = "C:\\work\\my tool.exe"
HYPHENS = "-" * 34
BOARD = 1  # page
PAINTED = 3  # colours of a preview with an icon


def expect_buttons(stage, checks, editor, count, words):
    checks.that(poll(lambda: len(stage.toolbar(editor).buttons) == count), words,
                len(stage.toolbar(editor).buttons))


def build(stage, checks, setup, editor):
    """An EAGLE command, a program and a gap, from nothing."""
    expect_buttons(stage, checks, editor, 1, "without a list the toolbar has its Config button alone")
    checks.that(setup.open(editor), "Config opens the setup")
    form = setup.form()
    checks.equal(form.text, "Configuration ", "it is in English")
    checks.equal(setup.page(), BOARD, "it shows the page of the toolbar's list")
    middle = abs(form.place.middle[0] - 800) <= 1 and abs(form.place.middle[1] - 600) <= 20
    checks.that(middle, "it stands in the middle of the screen", form.place)
    checks.that(not any(field.enabled for field in setup.fields()), "its fields are disabled")

    setup.press("Add EAGLE Command")
    checks.that(setup.shows("EAGLE Command", "", "", ""), "an EAGLE command shows with its title", setup.texts())
    checks.that("EAGLE Command:" in setup.captions(), "its command has a label of its own")
    checks.that(setup.fill(0, "Fit") and setup.fill(1, "window fit"), "title and command are typed")
    stage.screen.key("Tab")
    stage.screen.type("Fit it")
    checks.that(setup.shows("Fit", "window fit", "Fit it"), "the Tab key leads to the tip", setup.texts())

    stage.screen.key("alt+x")
    dialog = poll(lambda: stage.look().top("Select file to execute"))
    if checks.that(dialog, "Alt+X asks for a program"):
        stage.wait_for_focus(dialog[0].handle)
        checks.that(not setup.form().enabled, "the file dialog holds the setup")
        stage.screen.key("ctrl+a")
        stage.screen.type(TOOL)
        stage.screen.key("Return")
    checks.that(setup.shows("my tool.exe", TOOL), "the program shows with its bare name", setup.texts())
    checks.that("Command:" in setup.captions(), "and with the label of a command")
    view = [window for window in setup.seen("Static") if window.client.width == 23 and window.client.height == 23]
    checks.that(view and poll(lambda: stage.screen.colours(view[0].client) > PAINTED), "the program's icon is shown")

    stage.wait_for_focus(form.handle)
    stage.screen.key("alt+a")
    checks.that(setup.shows(HYPHENS, "", "", ""), "Alt+A adds a separator", setup.texts())
    checks.that(not any(field.enabled for field in setup.fields()), "a separator has no fields")
    stage.screen.click(*setup.arrows()[0].place.middle)
    checks.that(setup.shows(HYPHENS), "the separator moves up and stays selected")
    setup.select(2)
    checks.that(setup.shows("my tool.exe"), "the program is the last row now", setup.texts())


def choose_icon(stage, checks, setup):
    """The second icon of the samples' library, by the chooser."""
    setup.select(0)
    checks.that(setup.shows("Fit"), "the first row is selected by a click")
    setup.press("Change Icon")
    chooser = poll(lambda: stage.look().top("Choose Icon"))
    if not checks.that(chooser, "the icon chooser comes up"):
        return
    stage.wait_for_focus(chooser[0].handle)
    checks.that(not setup.form().enabled, "the chooser holds the setup")
    field = [window for window in chooser[0].inside() if window.class_name == "Edit"][0]
    checks.equal(field.text, "C:\\kestrel\\brd.ico", "it starts with the present icon")
    stage.screen.click(*field.place.middle)
    stage.screen.key("ctrl+a")
    stage.screen.type("C:\\windows\\system32\\shell32.dll")
    stage.screen.key("Return")
    poll(lambda: [window for window in stage.look().windows[chooser[0].handle].inside()
                  if window.class_name == "SysListView32" and window.visible])
    stage.screen.key("Home", "Right", "Right", "Return")
    checks.that(poll(lambda: not stage.look().top("Choose Icon")), "Enter takes an icon of another file")
    checks.that(stage.wait_for_focus(setup.form().handle), "the setup has the keyboard again")


def commit(stage, checks, setup, editor):
    stage.screen.key("alt+o")
    checks.that(setup.gone(), "Alt+O closes the setup")
    expect_buttons(stage, checks, editor, 3, "the toolbar has its new buttons")
    rows = settings.rows(stage.settings(), "board")
    checks.equal([row["name"] for row in rows], ["Fit", HYPHENS, "my tool.exe"], "the list is in the settings")
    checks.equal([row["type"] for row in rows], ["1", "2", "0"], "each entry with its type")
    checks.equal(rows[0]["path"] + "|" + rows[0]["tooltip"], "window fit|Fit it", "the command with its tip")
    checks.equal(rows[0]["icon"], "C:\\windows\\system32\\shell32.dll,2", "the icon that was chosen")
    checks.equal(rows[2]["path"] + "|" + rows[2]["icon"], f"{TOOL}|{TOOL},0", "the program with its icon")
    before = len(editor.executed())
    stage.click_button(editor, 0)
    poll(lambda: len(editor.executed()) > before)
    checks.equal(editor.executed()[before:], ["window fit"], "the new button types its command")


def second_start(stage, checks, editor, kestrel):
    checks.that(Tray(stage).choose("exit"), "the program is ended")
    stage.witness.exit_code(kestrel)
    checks.that(poll(lambda: not stage.toolbars(editor)), "the toolbar goes with it")
    kestrel = stage.start_kestrel()
    expect_buttons(stage, checks, editor, 3, "started again it still has the list")
    return kestrel


def story(stage, checks):
    stage.prefix.path(TOOL).parent.mkdir()
    stage.prefix.path(TOOL).write_bytes(stage.prefix.path("C:\\kestrel\\kestrel.exe").read_bytes())
    editor = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    editor.place(0, 0, 640, 440)
    kestrel = stage.start_kestrel("[global]\nlanguage=10000\n")
    setup = Setup(stage)
    build(stage, checks, setup, editor)
    choose_icon(stage, checks, setup)
    stage.picture("built", setup.form().place)
    commit(stage, checks, setup, editor)
    kestrel = second_start(stage, checks, editor, kestrel)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
