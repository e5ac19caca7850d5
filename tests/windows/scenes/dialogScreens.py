"""The program's own windows on a screen of 144 dpi, or of those that KESTREL_DPI names (120,192), from 192 on a large one, and
on a laptop of 1366 by 768 pixels at 125 %: in the screen's size, sharp, whole on the screen, each hit by the mouse. All places are
in the screen's own pixels; sizes named here are those of the design, at 96 dpi. The pictures are for looking at. That no text is
cut is measured by the contract tests."""

import os
from functools import partial

from errorDialog import FOLDER, ErrorDialog
from play import play_on_each
from resolutions import DESIGN, drawing, near, shows

from driver import paths, settings
from driver.desktop import Rect
from driver.display import HEIGHT, WIDTH, Display
from driver.setup import ROW, Setup
from driver.tray import Tray
from driver.waiting import poll

SPLASH = (402, 191)
SETUP = (452, 625)
INPUT_BOX = (360, 125)
ERROR_DIALOG = (481, 340)
ICON = 16
PAGES = ("general", "board", "schematic", "library")
WRONG = "a\xa7b"  # a button whose tag cannot be read: a click on it is an error
PAINTED = 10  # colours of what shows icons or a picture
LAPTOP = 1366, 768
LARGE = 2560, 1600
FINE = 192  # dpi at which the setup has no room on an ordinary display
TITLE = 32  # more than what the title bar takes


class Screen:
    """What is checked of each window."""

    def __init__(self, stage, checks, dpi, size):
        self.stage = stage
        self.checks = checks
        self.dpi = dpi
        self._size = size

    def here(self, pixels):
        return pixels * self.dpi / DESIGN

    def has(self, form, size, name):
        width, height = map(self.here, size)
        self.checks.that(near(form.client.width, width) and near(form.client.height, height), f"{self.dpi}, {name}: its size",
                         (form.client, width, height))
        self.whole(form, name)

    def whole(self, form, name):
        width, height = self._size
        place = form.client
        self.checks.that(place.left >= 0 and place.top >= 0 and place.right <= width and place.bottom <= height,
                         f"{self.dpi}, {name}: it stands whole on the screen", place)
        self.stage.picture(f"{self.dpi}-{name}", form.place)


def top(stage, title, class_name="KestrelForm"):
    """Waits for a window of the program's that has the keyboard."""
    found = poll(lambda: stage.look().top(title, class_name))
    return found[0] if found and stage.wait_for_focus(found[0].handle) else None


def splash(screen):
    """At the start it goes by itself, so the one that the tray opens is looked at; it may have gone before that, too."""
    stage = screen.stage

    def seen():
        found = [form for form in stage.look().top("", "KestrelForm") if near(form.client.width, screen.here(SPLASH[0]), 2)]
        return found[0] if found else None
    for _ in range(5):
        Tray(stage).choose("info")
        form = poll(seen)
        if form and poll(lambda: not seen() or stage.screen.colours(form.client) > PAINTED) and seen():
            break
    if screen.checks.that(form, f"{screen.dpi}: Info shows the splash"):
        screen.has(form, SPLASH, "splash")
        poll(lambda: not seen())


def chooser(screen, setup):
    setup.press("Change Icon")
    form = top(screen.stage, "Choose Icon")
    if screen.checks.that(form, f"{screen.dpi}: the icon chooser opens by a click"):
        grid = next(window for window in form.inside() if window.class_name == "SysListView32")
        screen.checks.that(poll(lambda: screen.stage.screen.colours(grid.client) > PAINTED), f"{screen.dpi}: it shows icons")
        screen.whole(form, "chooser")
        screen.stage.screen.key("Escape")
        screen.checks.that(setup.comes(), f"{screen.dpi}: Esc closes it")


def pages(screen, fits=True):
    stage, checks, setup = screen.stage, screen.checks, Setup(screen.stage)
    Tray(stage).choose("configuration")
    form = setup.comes()
    if not checks.that(form, f"{screen.dpi}: the setup opens"):
        return
    if not fits:  # it is drawn as large as there is room
        screen.dpi = round(form.client.width * DESIGN / SETUP[0])
        checks.that(screen.dpi > DESIGN, "the setup is larger than the design, though there is no room for all of its scale", screen.dpi)
    screen.has(form, SETUP, "setup")
    for number, page in enumerate(PAGES):
        setup.turn_to(number)
        if number:
            rows = setup.rows()
            stage.screen.click(round(rows.client.left + screen.here(40)), round(rows.client.top + screen.here(ROW / 2)))
            checks.that(poll(lambda: setup.texts()[0]), f"{screen.dpi}, {page}: a click chooses the first entry")
        stage.picture(f"{screen.dpi}-setup-{page}", form.place)
    wanted = drawing("library", round(screen.here(ICON)))
    if wanted:
        left, bottom = setup.button("Change Icon").place.left, setup.fields()[-1].place.bottom
        around = Rect(*(round(place) for place in (left + screen.here(60), bottom + screen.here(20), left + screen.here(100),
                                                   bottom + screen.here(50))))
        checks.that(poll(lambda: shows(stage, around, wanted)), f"{screen.dpi}: the entry's icon is drawn with its own pixels")
    if fits:
        chooser(screen, setup)
    setup.press("Add EAGLE Command")
    checks.that(setup.shows("EAGLE Command"), f"{screen.dpi}: a click hits its button")
    setup.press("Ok")
    checks.that(setup.gone(), f"{screen.dpi}: and OK is there to be clicked")


def message(screen):
    Tray(screen.stage).choose("eagle")
    box = top(screen.stage, "Information", "#32770")
    if screen.checks.that(box, f"{screen.dpi}: a message comes"):
        screen.whole(box, "message")
        screen.stage.screen.key("Return")


def click_row(screen, board, path):
    rows = settings.buttons(screen.stage.settings(), "board")
    screen.stage.click_button(board, [row["path"] for row in rows].index(path))


def error_box(screen, board, kestrel):
    click_row(screen, board, WRONG)
    box = top(screen.stage, "Kestrel", "#32770")
    if screen.checks.that(box, f"{screen.dpi}: an error is told in a box"):
        screen.whole(box, "error-box")
        screen.stage.screen.click(*next(inner for inner in box.inside() if inner.class_name == "Button").place.middle)
        screen.checks.equal(screen.stage.witness.exit_code(kestrel), 0, f"{screen.dpi}: a click on its OK ends the program")


def input_box(screen, board):
    click_row(screen, board, "ripup")
    form = top(screen.stage, "Input Parameter")
    if screen.checks.that(form, f"{screen.dpi}: a button opens the input box"):
        screen.has(form, INPUT_BOX, "input-box")
        cancel = next(inner for inner in form.inside() if inner.text == "Cancel")
        screen.stage.screen.click(*cancel.place.middle)
        screen.checks.that(poll(lambda: not screen.stage.look().top("Input Parameter")), f"{screen.dpi}: a click closes it")


def error_dialog(screen):
    screen.stage.prefix.put([paths.built(screen.stage.bits, "error-dialog.exe")], FOLDER)
    dialog = ErrorDialog(screen.stage, "8 long")
    screen.stage.wait_for_focus(dialog.shown.handle)
    screen.has(dialog.form(), ERROR_DIALOG, "error-dialog")
    screen.stage.screen.click(*dialog.visible("Button")[0].place.middle)
    screen.checks.that(poll(lambda: not screen.stage.witness.runs(dialog.process)), f"{screen.dpi}: a click ends it")


def text():
    lists = {kind: settings.rows(settings.start_set(), kind) for kind in settings.SECTIONS}
    lists["board"].append(settings.button("wrong", WRONG))
    lists["library"].insert(0, settings.button("own", "own", icon="{kestrelpath}\\lbr.ico,0"))
    return "[global]\nlanguage=10000\n[Unit]\nVisible=1\n" + settings.made({"EAGLEpath": "C:\\nowhere\\eagle.exe"}, **lists)


def story(stage, checks, dpi):
    size = LARGE if dpi >= FINE else (WIDTH, HEIGHT)
    screen = Screen(stage, checks, dpi, size)
    board = stage.start_eagle(arguments="-D monitor").open("board", "C:\\work\\demo.brd")
    board.place(0, 0, round(screen.here(720)), round(screen.here(440)))
    kestrel = stage.start_kestrel(text())
    checks.that(stage.toolbar(board) and stage.painted(board), f"{dpi}: the toolbar comes")
    input_box(screen, board)
    splash(screen)
    message(screen)
    error_dialog(screen)
    pages(screen, screen.here(SETUP[1]) < size[1] - 2 * TITLE)
    screen.dpi = dpi
    error_box(screen, board, kestrel)


def laptop(stage, checks):
    stage.start_kestrel(text())
    pages(Screen(stage, checks, 120, LAPTOP), fits=False)


if __name__ == "__main__":
    play_on_each(__file__, {
        **{dpi: (partial(story, dpi=int(dpi)),
                 {"dpi": int(dpi), "pixels": True, "display": Display(*LARGE) if int(dpi) >= FINE else None})
           for dpi in os.environ.get("KESTREL_DPI", "144").split(",")},
        "laptop": (laptop, {"dpi": 120, "pixels": True, "display": Display(*LAPTOP)})})
