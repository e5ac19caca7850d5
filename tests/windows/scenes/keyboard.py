"""The keyboard is where it was when something of Kestrel's has gone: a key that is typed then arrives in EAGLE's command
field."""

from play import play

from driver import settings
from driver.settings import button
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import LIMIT, poll

BOARD = [button("Rip up", "ripup", dialog=settings.INPUT_BOX, param="Which signals?")]
FILE = "C:\\work\\demo.brd"


def text(**toolbar):
    return "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0, **toolbar}, board=BOARD)


TEXT = text(EAGLEpath="C:\\nowhere\\eagle.exe")
FILE_TO_FRONT = text(EAGLEpath="C:\\eagle\\eagle.exe", oneEAGLE=1, winEAGLE=1, EAGLEfile=f"Board - {FILE}")
SPLASH_SIZE = (6030 // 15 + 2, 2865 // 15 + 2)  # pixels, with a thin border


class Field:
    """The command field of the editor that the user works in."""

    def __init__(self, stage, checks, editor):
        self._stage, self._checks, self._editor = stage, checks, editor

    def take(self):
        """The user clicks into it."""
        self._stage.screen.click(*self._stage.command_field(self._editor).place.middle)
        self._stage.wait_for_focus(self._editor.handle)
        return poll(lambda: self._stage.command_field_focused(self._editor))

    def gets_keys(self, words):
        """Types a key, which is to arrive there."""
        self._checks.that(poll(lambda: self._stage.command_field_focused(self._editor)),
                          f"{words}: the command field has the focus")
        # The display's own focus follows Windows' a moment later.
        self._checks.that(self._stage.wait_for_focus(self._editor.handle), f"{words}: the user's keys go to its window")
        before = self._stage.command_field(self._editor).text
        self._stage.screen.type("k")
        self._checks.that(poll(lambda: self._stage.command_field(self._editor).text == before + "k"),
                          f"{words}: a typed key arrives in it", self._stage.command_field(self._editor).text)


def splash(stage):
    found = [form for form in stage.look().top(class_name="KestrelForm")
             if form.text == "" and (form.place.width, form.place.height) == SPLASH_SIZE]
    return found[0] if found else None


def menu_left(stage, checks, tray, field):
    for words, leave in (("menu, Esc", lambda: stage.screen.key("Escape")),
                         ("menu, a click beside it", lambda: stage.screen.click(1500, 1000))):
        checks.that(tray.open(), f"{words}: the menu opens")
        leave()
        checks.that(poll(lambda: tray.menu() is None), f"{words}: it goes")
        field.gets_keys(words)


def info(stage, checks, tray, field):
    tray.choose("info")
    seen = poll(lambda: splash(stage))
    if checks.that(seen, "Info comes up"):
        stage.screen.click(*seen.place.middle)
    checks.that(poll(lambda: splash(stage) is None), "Info goes by a click")
    field.gets_keys("Info, clicked away")
    tray.choose("info")
    poll(lambda: splash(stage))
    tray.open()
    checks.that(poll(lambda: splash(stage) is None), "Info goes while the menu is open")
    stage.screen.click(1500, 1000)
    checks.that(poll(lambda: tray.menu() is None), "then the menu goes")
    field.gets_keys("Info and menu")


def message(stage, checks, tray, field):
    for key in ("Return", "Escape"):
        tray.choose("eagle")
        box = poll(lambda: stage.look().top("Information", "#32770"))
        checks.that(box and stage.wait_for_focus(box[0].handle), "a wrong path: the message has the keyboard")
        stage.screen.key(key)
        checks.that(poll(lambda: not stage.look().top("Information", "#32770")), f"{key} closes it")
        field.gets_keys(f"message, {key}")


def help_window(stage):
    found = stage.look().top(class_name="HH Parent")
    return found[0] if found else None


def help_entry(stage, checks, tray, field):
    tray.choose("help")
    window = poll(lambda: help_window(stage))
    checks.that(window and stage.wait_for_focus(window.handle), "the help has the keyboard")
    stage.screen.key("alt+F4")
    checks.that(poll(lambda: help_window(stage) is None), "Alt+F4 closes it")
    field.gets_keys("Help")


def open_eagle(stage, checks, tray, field, editor):
    """EAGLE runs and the file is open in it: control panel and editor are brought to the front, the editor last."""
    stage.write_settings(FILE_TO_FRONT)
    owner = [window for window in stage.look().windows.values() if window.text == "Kestrel Strip for EAGLE"][0]
    tray.choose("eagle")
    checks.that(stage.witness.answers(owner.handle, LIMIT), "Open EAGLE is done")
    checks.that(poll(lambda: stage.look().foreground == editor.handle), "the editor of the file is in front")
    checks.that(not stage.look().top("Information", "#32770"), "there is no message")
    field.gets_keys("Open EAGLE")
    stage.write_settings(TEXT)


def configuration(stage, checks, tray, field):
    setup = Setup(stage)
    for key in ("Escape", "Return"):
        tray.choose("configuration")
        checks.that(setup.comes(), "the setup has the keyboard")
        stage.screen.key(key)
        checks.that(setup.gone(), f"{key} closes it")
        field.gets_keys(f"setup, {key}")


def busy(stage, checks, editor):
    """EAGLE is busy when the input box closes."""
    stage.click_button(editor, 0)
    box = poll(lambda: stage.look().top("Input Parameter"))
    checks.that(box and stage.wait_for_focus(box[0].handle), "the input box has the keyboard")
    stage.screen.type("GND")
    before = len(editor.executed())
    editor.eagle.hang(1.2)
    stage.screen.key("Return")
    poll(lambda: len(editor.executed()) > before)
    checks.that(editor.executed()[before:] and editor.executed()[-1].endswith("ripup GND"),
                "an EAGLE that is busy when the input box closes gets its command", editor.executed()[before:])


def leave(stage, checks, tray, field, kestrel):
    tray.choose("exit")
    checks.equal(stage.witness.exit_code(kestrel), 0, "Exit ends the program")
    field.gets_keys("Exit")


def story(stage, checks):
    editor = stage.start_eagle().open("board", FILE)
    editor.place(0, 0, 640, 440)
    kestrel = stage.start_kestrel(TEXT)
    tray = Tray(stage)
    checks.that(stage.toolbar(editor) and poll(tray.icon), "Kestrel is there")
    field = Field(stage, checks, editor)
    checks.that(field.take(), "the user is in EAGLE's command field")
    menu_left(stage, checks, tray, field)
    info(stage, checks, tray, field)
    help_entry(stage, checks, tray, field)
    open_eagle(stage, checks, tray, field, editor)
    message(stage, checks, tray, field)
    configuration(stage, checks, tray, field)
    busy(stage, checks, editor)
    leave(stage, checks, tray, field, kestrel)


if __name__ == "__main__":
    play(__file__, story)
