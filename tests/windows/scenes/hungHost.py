"""An EAGLE that has the keyboard hangs: whatever the user asks of Kestrel meanwhile happens before it wakes."""

import os

from calculator import LEFT, fields, focused, texts
from play import play

from driver import settings
from driver.settings import button
from driver.hungEagle import HungEagle
from driver.setup import Setup
from driver.stage import KESTREL
from driver.tray import Tray
from driver.waiting import poll

IN_TIME = 12  # seconds, fewer than it hangs
INPUT_BOX, FILE_DIALOG = "Input Parameter", "Which file?"
FIT, INPUT, FILE = range(3)  # buttons of each toolbar
ROWS = [button("Fit", "window fit"), button("Input", "ripup", dialog=settings.INPUT_BOX, param="Which signals?"),
        button("File", "run", dialog=settings.FILE_DIALOG, param=FILE_DIALOG)]
SETTINGS = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"},
                                                         board=ROWS, schematic=ROWS, library=ROWS)
SETTINGS += "[Unit]\nVisible=1\n"
OURS = "EAGLE Kestrel Bench"


class Trial:
    """What is asked for while EAGLE hangs has to come before it wakes."""

    def __init__(self, checks, eagle):
        self._checks, self._eagle = checks, eagle

    def comes(self, words, ask):
        self._checks.that(self._eagle.hang(), f"{words}: EAGLE has its toolbar and the keyboard")
        self._checks.that(ask() and self._eagle.hangs(), f"{words}: while EAGLE hangs")
        self._eagle.wake()

    def comes_and_stays(self, words, ask):
        """Kestrel goes on and is with EAGLE again when that has woken."""
        self.comes(words, ask)
        self._checks.that(poll(self._eagle.joined), f"{words}: the input is joined again when EAGLE has woken")


def top(stage, title, class_name=None):
    found = stage.look().top(title, class_name)
    return found[0] if found else None


def comes_and_goes(stage, title, key):
    """A dialog comes up, has the keyboard and goes by a key."""
    dialog = poll(lambda: top(stage, title), IN_TIME)
    if not dialog or not stage.wait_for_focus(dialog.handle, IN_TIME):
        return False
    stage.screen.key(key)
    return poll(lambda: not top(stage, title), IN_TIME)


def setup_goes(stage):
    setup = Setup(stage)
    form = poll(setup.form, IN_TIME)
    if not form or not stage.wait_for_focus(form.handle, IN_TIME):
        return False
    stage.screen.key("Escape")
    return poll(lambda: not setup.form(), IN_TIME)


def menu(stage):
    tray = Tray(stage)
    if not tray.open():
        return False
    stage.screen.click(300, 900)
    return poll(lambda: not tray.menu(), IN_TIME)


def info(stage):
    def splash():
        # Not the form that a calculator's frame has left.
        return [form for form in stage.look().top(class_name="KestrelForm") if form.text == "" and form.place.width > 0]
    return Tray(stage).choose("info") and poll(splash, IN_TIME) and poll(lambda: not splash(), IN_TIME)


def run_request(stage):
    written = stage.prefix.path(KESTREL + "\\request.tmp")
    written.write_text("C:\\windows\\notepad.exe")
    os.rename(written, stage.prefix.path(KESTREL + "\\execute.txt"))
    return poll(lambda: top(stage, "Notepad"), IN_TIME)


def converts(stage, editor, mils, millimetres):
    """Typed into the calculator in the window of the EAGLE that has got a toolbar last. Wine joins our input with one EAGLE at a
    time only, so that a field in another's window cannot have the focus there."""
    stage.screen.click(*fields(stage, editor)[LEFT].place.middle)
    if not focused(stage, editor, LEFT):
        return False
    stage.screen.type(mils)
    return poll(lambda: texts(stage, editor) == [mils, millimetres], IN_TIME)


def from_the_tray(stage, trial):
    trial.comes_and_stays("the tray's menu", lambda: menu(stage))
    trial.comes_and_stays("Info", lambda: info(stage))
    trial.comes_and_stays("the setup from the tray", lambda: Tray(stage).choose("configuration") and setup_goes(stage))
    trial.comes_and_stays("a message",
                          lambda: Tray(stage).choose("eagle") and comes_and_goes(stage, "Information", "Return"))


def from_another_host(stage, trial, editor):
    def click(number):
        stage.click_button(editor, number)
        return True

    trial.comes_and_stays("the setup from another EAGLE", lambda: click(-1) and setup_goes(stage))
    trial.comes_and_stays("an input box", lambda: click(INPUT) and comes_and_goes(stage, INPUT_BOX, "Escape"))
    trial.comes_and_stays("a file dialog", lambda: click(FILE) and comes_and_goes(stage, FILE_DIALOG, "Escape"))


def by_itself(stage, trial, other):
    for kind, file in (("board", "new.brd"), ("schematic", "new.sch"), ("library", "new.lbr")):
        trial.comes_and_stays(f"a new toolbar, {kind}", lambda kind=kind, file=file: stage.toolbar(
            other.open(kind, "C:\\work\\" + file), IN_TIME))
    trial.comes_and_stays("a run request", lambda: run_request(stage))


def nothing_lost(stage, checks, eagle):
    """Each board that has hung has kept what it had."""
    editors = [eagle.beside, *eagle.boards]
    counted = [(len(stage.toolbars(editor)), len(fields(stage, editor))) for editor in editors]
    checks.equal(counted, [(1, 2)] * len(editors), "each board has its toolbar and its calculator")


def story(stage, checks):
    eagle = HungEagle(stage)
    trial = Trial(checks, eagle)
    kestrel = stage.start_kestrel(SETTINGS)
    checks.that(stage.toolbar(eagle.beside) and poll(Tray(stage).icon), "Kestrel is there")
    stage.witness.order("front")
    from_the_tray(stage, trial)
    from_another_host(stage, trial, eagle.beside)
    by_itself(stage, trial, eagle.other)
    stage.click_button(eagle.board, FIT)
    poll(eagle.board.executed)
    checks.equal(eagle.board.executed(), ["window fit"], "the toolbar in the EAGLE that hung works again")
    checks.that(converts(stage, eagle.board, "500", "12.7"), "so does its calculator", texts(stage, eagle.board))
    nothing_lost(stage, checks, eagle)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")
    fronts = [event.words[1] for event in stage.witness.events("front")]
    checks.that(OURS not in fronts, "no toolbar has been in front, not for a moment", fronts)


if __name__ == "__main__":
    play(__file__, story)
