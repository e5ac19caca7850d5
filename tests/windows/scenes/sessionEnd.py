"""The user logs off: whatever Kestrel has open, it lets Windows go on at once and leaves nothing behind."""

from play import play

from driver import settings
from driver.settings import button
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll

LOG_OFF = "C:\\windows\\system32\\wineboot.exe --end-session"
BOARD = [button("Rip up", "ripup", dialog=settings.INPUT_BOX, param="Which signals?"),
         button("Run", "run", dialog=settings.FILE_DIALOG, param="Which program?")]
TEXT = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"}, board=BOARD)


def nothing(stage, checks, board):
    """The toolbars alone."""


def setup(stage, checks, board):
    dialog = Setup(stage)
    checks.that(dialog.open(board), "the setup is open")
    dialog.press("Add EAGLE Command")
    checks.that(dialog.shows("EAGLE Command"), "with an entry that is not saved")


def input_box(stage, checks, board):
    stage.click_button(board, 0)
    checks.that(poll(lambda: stage.look().top("Input Parameter")), "an input box is open")


def file_dialog(stage, checks, board):
    stage.click_button(board, 1)
    checks.that(poll(lambda: stage.look().top("Which program?")), "a file dialog is open")


def message(stage, checks, board):
    Tray(stage).choose("eagle")
    checks.that(poll(lambda: stage.look().top("Information", "#32770")), "a message is open")


def menu(stage, checks, board):
    checks.that(Tray(stage).open(), "the tray's menu is open")


def log_off(stage, checks, words, opened):
    eagle = stage.start_eagle(words.replace(" ", "-"))
    board = eagle.open("board", "C:\\work\\demo.brd")
    kestrel = stage.start_kestrel(TEXT)
    if not checks.that(stage.toolbar(board) and poll(Tray(stage).icon), f"{words}: Kestrel is there"):
        return
    before = stage.settings()
    opened(stage, checks, board)
    stage.picture(words.replace(" ", "-"))
    stage.witness.run(LOG_OFF)
    checks.equal(stage.witness.exit_code(kestrel), 0, f"{words}: Kestrel ends, with code 0")
    # A program that Windows has to end by force leaves its icon.
    checks.that(Tray(stage).gone(), f"{words}: its icon has gone")
    checks.equal([window.text for window in stage.look().top(class_name="KestrelForm")], [], f"{words}: so have its windows")
    checks.equal(stage.settings(), before, f"{words}: the settings are as they were")


def story(stage, checks):
    for words, opened in (("toolbars alone", nothing), ("setup", setup), ("input box", input_box),
                          ("file dialog", file_dialog), ("message", message), ("menu", menu)):
        log_off(stage, checks, words, opened)


if __name__ == "__main__":
    play(__file__, story)
