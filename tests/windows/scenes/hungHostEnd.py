"""An EAGLE that has the keyboard hangs: Kestrel ends before it wakes, by Exit, by an error, with the session, also while a
file dialog holds that EAGLE's window, which works again once it has woken."""

from endUnderDialog import fail, main_form
from hungHost import FILE, FILE_DIALOG, IN_TIME, SETTINGS, Trial, comes_and_goes, top
from play import play

from driver import settings
from driver.hungEagle import HungEagle
from driver.settings import button
from driver.tray import Tray
from driver.waiting import poll

WM_CLOSE, WM_QUERYENDSESSION, WM_ENDSESSION = 0x10, 0x11, 0x16
BROKEN = settings.made(library=[button("A", "a", dialog="ask")])


def ends(stage, checks, eagle, words, ask):
    """With code 0, and leaves no icon."""
    eagle.beside.to_front()
    kestrel = stage.start_kestrel(SETTINGS)
    checks.that(stage.toolbar(eagle.beside) and poll(Tray(stage).icon), f"{words}: Kestrel is there")
    Trial(checks, eagle).comes(words, lambda: ask() and stage.witness.exit_code(kestrel, IN_TIME) == 0)
    checks.that(Tray(stage).gone(), f"{words}: its icon has gone")


def error(stage, other):
    stage.write_settings(BROKEN)
    library = other.open("library", "C:\\work\\new.lbr")
    shown = comes_and_goes(stage, "Kestrel", "Return")
    library.close()  # without a schematic it would get a toolbar with each tick
    return shown


def session_end(stage):
    """What Windows sends to Kestrel's windows. Wine's own log off would wait for EAGLE before it comes to Kestrel."""
    desktop = stage.look()
    kestrel = desktop.running("kestrel.exe")
    windows = [window.handle for window in desktop.windows.values() if window.parent == 0 and window.process in kestrel]
    for message in (WM_QUERYENDSESSION, WM_ENDSESSION):
        for window in windows:
            stage.witness.send("post", window, message, 1, 0)
    return windows


def under_dialog(stage, checks, eagle, words, end):
    """A toolbar's file dialog is up, and the toolbar's own EAGLE hangs."""
    def enabled():
        return stage.look().windows[eagle.board.handle].enabled

    eagle.beside.to_front()
    kestrel = stage.start_kestrel(SETTINGS)
    checks.that(eagle.ready() and poll(Tray(stage).icon), f"{words} under a dialog: Kestrel is there")
    stage.click_button(eagle.board, FILE)
    checks.that(poll(lambda: top(stage, FILE_DIALOG) and not enabled()), f"{words} under a dialog: it holds EAGLE's window")
    eagle.sleep()
    checks.that(end(stage) and stage.witness.exit_code(kestrel, IN_TIME) == 0 and eagle.hangs(),
                f"{words} under a dialog: Kestrel ends while EAGLE hangs")
    eagle.wake()
    checks.that(poll(enabled), f"{words} under a dialog: EAGLE's window works again")
    checks.that(Tray(stage).gone(), f"{words} under a dialog: the icon has gone")


def installers_close(stage):
    form = main_form(stage)
    return form and stage.witness.send("post", form.handle, WM_CLOSE, 0, 0)


def fails(stage):
    fail(stage)
    return True


def story(stage, checks):
    eagle = HungEagle(stage)
    ends(stage, checks, eagle, "Exit", lambda: Tray(stage).choose("exit"))
    ends(stage, checks, eagle, "an error", lambda: error(stage, eagle.other))
    ends(stage, checks, eagle, "the end of the session", lambda: session_end(stage))
    for words, end in (("Exit", lambda stage: Tray(stage).choose("exit")), ("the installer's close", installers_close),
                       ("the end of the session", session_end), ("an error", fails)):
        under_dialog(stage, checks, eagle, words, end)


if __name__ == "__main__":
    play(__file__, story)
