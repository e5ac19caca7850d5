"""Kestrel ends while it has something up: under a toolbar's file dialog EAGLE's window works again, and a start that is
closed under the splash goes no further."""

from play import play

from driver import settings
from driver.settings import button
from driver.stage import KESTREL
from driver.tray import Tray
from driver.waiting import poll

WM_CLOSE, WM_QUERYENDSESSION, WM_ENDSESSION = 0x10, 0x11, 0x16
QUESTION = "Which program?"
REQUEST = KESTREL + "\\execute.txt"
EAGLE_FOLDER = "C:\\started"  # not where the one with the board runs: its file must not be written over
TEXT = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0}, board=[
    button("Run", "run", dialog=settings.FILE_DIALOG, param=QUESTION)])
STARTS_EAGLE = "[global]\nlanguage=10000\n" + settings.made({"autoEAGLE": 1, "EAGLEpath": EAGLE_FOLDER + "\\eagle.exe"})


def main_form(stage):
    """Hidden; the installer finds it by these two."""
    return next((window for window in stage.look().windows.values()
                 if window.class_name == "KestrelForm" and window.text == "Kestrel Strip for EAGLE"), None)


def post(stage, *messages):
    form = main_form(stage).handle
    for message, number in messages:
        stage.witness.order("post", form, message, number, 0)


def leave(stage):
    Tray(stage).choose("exit")


def close(stage):
    post(stage, (WM_CLOSE, 0))


def log_off(stage):
    post(stage, (WM_QUERYENDSESSION, 0), (WM_ENDSESSION, 1))


def fail(stage):
    """A request that cannot be deleted is an error."""
    request = stage.prefix.path(REQUEST)
    request.write_text("x")
    request.chmod(0o444)
    box = poll(lambda: [top for top in stage.look().top("Kestrel", "#32770") if top.text == "Kestrel"])
    ok = next(child for child in box[0].inside() if child.class_name == "Button")
    stage.picture("error")
    stage.screen.click(*ok.place.middle)
    poll(lambda: not stage.look().top("Kestrel", "#32770"))
    request.unlink()


def under_dialog(stage, checks, board, words, end):
    def enabled():
        return stage.look().windows[board.handle].enabled

    kestrel = stage.start_kestrel(TEXT)
    if not checks.that(stage.toolbar(board) and poll(Tray(stage).icon), f"{words}: Kestrel is there"):
        return
    stage.click_button(board, 0)
    checks.that(poll(lambda: stage.look().top(QUESTION) and not enabled()), f"{words}: a file dialog holds EAGLE's window")
    end(stage)
    checks.equal(stage.witness.exit_code(kestrel), 0, f"{words}: Kestrel ends")
    checks.that(poll(enabled), f"{words}: EAGLE's window works again")
    checks.that(Tray(stage).gone(), f"{words}: the icon has gone")
    checks.equal([window.text for window in stage.look().top(class_name="KestrelForm")], [], f"{words}: so have the windows")


def under_splash(stage, checks):
    stage.place_eagle(EAGLE_FOLDER)
    before = len(stage.look().running("eagle.exe"))
    kestrel = stage.start_kestrel(STARTS_EAGLE)
    checks.that(poll(lambda: stage.look().top(class_name="KestrelForm")), "splash: it is up")
    close(stage)
    checks.equal(stage.witness.exit_code(kestrel, 5), 0, "splash: Kestrel ends")
    checks.equal(len(stage.look().running("eagle.exe")), before, "splash: no EAGLE has been started")
    checks.that(Tray(stage).icon() is None, "splash: there is no icon")


def story(stage, checks):
    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    board.place(800, 20, 790, 560)
    for words, end in (("Exit", leave), ("installer's close", close), ("end of the session", log_off), ("error", fail)):
        under_dialog(stage, checks, board, words, end)
    under_splash(stage, checks)


if __name__ == "__main__":
    play(__file__, story)
