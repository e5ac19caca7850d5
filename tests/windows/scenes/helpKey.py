"""F1 is help in each dialog of Kestrel's own, which goes on when the help has been closed."""

from play import play

from driver import settings
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll

BOARD = [settings.button("Rip up", "ripup", dialog=settings.INPUT_BOX, param="Which signals?")]
INPUT_BOX, CHOOSER = "Input Parameter", "Choose Icon"
TRIES = 8  # with what goes by itself after two seconds


def form(stage, title):
    found = [window for window in stage.look().top(class_name="KestrelForm") if window.text.strip() == title]
    return found[0] if found else None


def help_window(stage):
    found = stage.look().top(class_name="HH Parent")
    return found[0] if found else None


def helps(stage, checks, words, dialog):
    """The dialog, which has the keyboard, is asked for help."""
    stage.screen.key("F1")
    checks.that(poll(lambda: help_window(stage)), f"{words}: F1 opens the help")
    close_help(stage)
    checks.that(poll(lambda: stage.look().windows.get(dialog.handle)), f"{words}: the dialog is still there")
    stage.wait_for_focus(dialog.handle)


def close_help(stage):
    window = help_window(stage)
    if window:
        stage.wait_for_focus(window.handle)
        stage.screen.key("alt+F4")
        poll(lambda: help_window(stage) is None)


def input_box(stage, checks, editor):
    stage.click_button(editor, 0)
    box = poll(lambda: form(stage, INPUT_BOX))
    checks.that(box and stage.wait_for_focus(box.handle), "the input box has the keyboard")
    helps(stage, checks, "input box", box)
    stage.screen.type("GND")
    stage.screen.key("Return")
    checks.that(poll(editor.executed) == ["ripup GND"], "input box: it goes on", editor.executed())


def setup_and_chooser(stage, checks, editor):
    setup = Setup(stage)
    checks.that(setup.open(editor), "the setup has the keyboard")
    helps(stage, checks, "setup", setup.form())
    setup.select(0)
    checks.that(setup.shows("Rip up"), "setup: it goes on")
    setup.press("Change Icon")
    chooser = poll(lambda: form(stage, CHOOSER))
    checks.that(chooser and stage.wait_for_focus(chooser.handle), "the icon chooser has the keyboard")
    helps(stage, checks, "icon chooser", chooser)
    stage.screen.key("Escape")
    checks.that(poll(lambda: form(stage, CHOOSER) is None), "icon chooser: it goes on")
    stage.wait_for_focus(setup.form().handle)
    stage.screen.key("Escape")
    setup.gone()


def info(stage, checks):
    """It goes by itself, on a busy machine perhaps before the key has come."""
    for _ in range(TRIES):
        Tray(stage).choose("info")
        poll(lambda: form(stage, ""))
        stage.screen.key("F1")
        if poll(lambda: help_window(stage), 3):
            break
    checks.that(help_window(stage), "Info: F1 opens the help")
    close_help(stage)
    checks.that(poll(lambda: form(stage, "") is None), "Info: it goes as always")


def story(stage, checks):
    editor = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    editor.place(0, 0, 640, 440)
    kestrel = stage.start_kestrel("[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0}, board=BOARD))
    checks.that(stage.toolbar(editor) and poll(lambda: form(stage, "") is None), "Kestrel is there")
    input_box(stage, checks, editor)
    setup_and_chooser(stage, checks, editor)
    info(stage, checks)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
