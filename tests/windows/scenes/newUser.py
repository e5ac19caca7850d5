"""A new user's first minutes: the zip is unpacked, "Start English.cmd" is double-clicked, a library is the first thing that is
opened, a button is clicked, one is added by pasting it and clicked too."""

from play import play

from driver import settings
from driver.installation import Installation
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll, stays

FOLDER = "C:\\users\\root\\Desktop\\Kestrel"
START = "Start English.cmd"
LIBRARY_PAGE = 3
MAIL = "C:\\users\\root\\Desktop\\mail.txt"
ROW = settings.button("Closer", "window 2;", tooltip="Show the drawing twice as large")
LINES = [f"1{key}={ROW.get(key, '')}" for key in settings.KEYS]


def unpack(stage, setup):
    for name, content in setup.portable.items():
        file = stage.prefix.path(FOLDER + "\\" + name.replace("/", "\\"))
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)


def stored(stage):
    return stage.prefix.path(FOLDER + "\\kestrel.ini").read_bytes()


def starts(stage, checks, setup):
    """Gives Kestrel's process id."""
    script = stage.witness.run(f'C:\\windows\\system32\\cmd.exe /c "{FOLDER}\\{START}"')
    checks.equal(stage.witness.exit_code(script), 0, f"{START} ends by itself")
    checks.that(poll(Tray(stage).icon), "the bird stands beside the clock")
    checks.equal(stored(stage), setup.files["samples/English/kestrel.ini"], "the buttons to begin with are the settings")
    return stage.look().running("kestrel.exe")[0]


def types(stage, checks, editor, number, expected, words):
    before = len(editor.executed())
    stage.click_button(editor, number)
    poll(lambda: len(editor.executed()) > before)
    checks.equal(editor.executed()[before:], [expected], words)


def adds_by_paste(stage, checks, editor):
    stage.copy_text(MAIL, LINES)
    setup = Setup(stage)
    checks.that(setup.open(editor), "the gear opens the setup")
    checks.equal(setup.page(), LIBRARY_PAGE, "on the page of the library")
    setup.select(0)
    checks.that(setup.shows("Fit"), "a button is selected")
    stage.screen.key("ctrl+v")
    checks.that(setup.shows("Closer", "window 2;"), "Ctrl+V adds the one out of a mail")
    stage.screen.key("alt+o")
    checks.that(setup.gone(), "Ok closes the setup")


def story(stage, checks):
    setup = Installation(stage)
    unpack(stage, setup)
    eagle = stage.start_eagle()
    starts(stage, checks, setup)
    library = eagle.open("library", "C:\\work\\parts.lbr")
    library.place(0, 0, 640, 440)
    toolbar = stage.toolbar(library)
    if not checks.that(toolbar, "a library is opened first: a toolbar comes"):
        return
    checks.that(stays(lambda: len(stage.toolbars(library)) == 1, 2), "and no second one, many ticks later")
    checks.that(stage.painted(library), "all its buttons have their pictures")
    rows = settings.buttons(stored(stage).decode("cp1252"), "library")
    redraw = [row["name"] for row in rows].index("Redraw")
    types(stage, checks, library, redraw, "window;", "Redraw types what redraws")
    adds_by_paste(stage, checks, library)
    checks.that(poll(lambda: len(stage.toolbar(library).buttons) == len(rows) + 2), "the toolbar has one button more")
    types(stage, checks, library, 1, "window 2;", "the new button types its command")
    again = stage.witness.run(f'C:\\windows\\system32\\cmd.exe /c "{FOLDER}\\{START}"')
    changed = stored(stage)
    stage.witness.exit_code(again)
    checks.that(stored(stage) == changed and b"Closer" in changed, "a second start by the same file leaves the settings")
    stage.picture("new-user")


if __name__ == "__main__":
    play(__file__, story)
