"""A theme of high contrast. The pictures are for looking at."""

from play import play

from driver import settings
from driver.desktop import Rect
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll

PAGES = ("general", "board", "schematic", "library")
WIDTH, HEIGHT = 452, 625  # of the setup without its frame
BLACK, WHITE, GREEN, VIOLET = "0 0 0", "255 255 255", "0 255 0", "128 0 128"
BLACK_THEME = {
    "Control Panel\\Colors": {
        **dict.fromkeys(("AppWorkspace", "ButtonAlternateFace", "ButtonFace", "InfoWindow", "Menu", "MenuBar", "Scrollbar",
                         "Window"), BLACK),
        **dict.fromkeys(("ButtonDkShadow", "ButtonLight", "ButtonShadow", "ButtonText", "HilightText", "InactiveTitleText",
                         "InfoText", "MenuText", "TitleText", "WindowFrame", "WindowText"), WHITE),
        **dict.fromkeys(("ActiveTitle", "GradientActiveTitle", "Hilight", "MenuHilight"), VIOLET),
        "ButtonHilight": "192 192 192", "GrayText": GREEN},
    "Control Panel\\Accessibility\\HighContrast": {"Flags": "127", "High Contrast Scheme": "High Contrast Black"},
    "Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager": {"ThemeActive": "0"}}


def text():
    demo = settings.start_set()
    lists = {kind: settings.rows(demo, kind) for kind in settings.SECTIONS}
    options = {"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"}
    return "[global]\nlanguage=10000\n[Unit]\nVisible=1\n" + settings.made(options, **lists)


def all_pages(stage, checks, name):
    """The setup, opened from the tray."""
    checks.that(Tray(stage).choose("configuration"), f"{name}: the tray's menu is used with the mouse")
    setup = Setup(stage)
    form = setup.comes()
    if not checks.that(form, f"{name}: the setup opens"):
        return
    checks.that((form.client.width, form.client.height) == (WIDTH, HEIGHT), f"{name}: in its size", form.client)
    for number, page in enumerate(PAGES):
        setup.turn_to(number)
        if number:
            setup.select(3)
        stage.picture(f"{name}-{page}", form.place)
    setup.press("Add EAGLE Command")
    checks.that(setup.shows("EAGLE Command"), f"{name}: a click hits its button")
    setup.press("Cancel")
    checks.that(setup.gone(), f"{name}: and closes it")


def message(stage, checks, name):
    Tray(stage).choose("eagle")
    box = poll(lambda: stage.look().top("Information", "#32770"))
    if checks.that(box, f"{name}: a message comes"):
        stage.wait_for_focus(box[0].handle)
        stage.picture(f"{name}-message", box[0].place)
        stage.screen.key("Return")


def pixel(stage, x, y):
    """Its colour in the system's notation."""
    blue, green, red = stage.screen.shown(Rect(x, y, x + 1, y + 1))[-4:-1]
    return f"{red} {green} {blue}"


def high_contrast(stage, checks):
    name = "contrast"
    eagle = stage.start_eagle()
    board = eagle.open("board", "C:\\work\\demo.brd")
    board.place(0, 0, 720, 440)
    stage.start_kestrel(text())
    bar = stage.toolbar(board)
    if not checks.that(bar and stage.painted(board), f"{name}: the toolbar comes"):
        return
    stage.picture(f"{name}-toolbar", Rect(0, 0, 720, 440))
    last = bar.buttons[-1].place
    checks.equal(pixel(stage, last.right + 3, last.bottom - 3), BLACK, f"{name}: it has the theme's colour")
    all_pages(stage, checks, name)
    message(stage, checks, name)


if __name__ == "__main__":
    play(__file__, high_contrast, registry=BLACK_THEME)
