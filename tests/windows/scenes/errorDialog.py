"""The dialog that reports a failure, used and killed; the program of its own that shows it ends with the user's
choice."""

from play import play

from driver import paths
from driver.waiting import poll, stays
from version import version

FOLDER = "C:\\errors"
PROGRAM = FOLDER + "\\error-dialog.exe"
TITLE = f"error-dialog  V{version()} - Fehlermeldung"
END = "Programm &beenden"
KILLED = 9  # the witness's exit code for what it terminates
PAINTED = 6  # colours of a dialog that has been painted
RULE = b"-" * 70 + b"\r\n"


class ErrorDialog:
    """The program, started, with its dialog up."""

    def __init__(self, stage, arguments):
        self._stage = stage
        self.process = stage.witness.run(f"{PROGRAM} {arguments}")
        self.shown = poll(self.form, 60)
        if not self.shown:
            raise RuntimeError("the dialog does not come up")
        poll(lambda: stage.screen.colours(self.shown.client) > PAINTED)

    def form(self):
        found = self._stage.look().top(TITLE, "KestrelForm")
        return found[0] if found else None

    def visible(self, class_name):
        """Controls of a class that the user sees, from the top of the form."""
        found = [window for window in self.form().inside() if window.class_name == class_name and window.visible]
        return sorted(found, key=lambda window: (window.place.top, window.place.left))

    def labelled(self, text):
        return [window for window in self.form().inside() if window.text.startswith(text)][0]

    def picture(self, name):
        self._stage.picture(name, self.form().place)

    def kill(self):
        self._stage.witness.order("terminate", self.process)
        return self._stage.witness.exit_code(self.process) == KILLED


def protocol(stage):
    file = stage.prefix.path(FOLDER + "\\error-dialog.EPT")
    return file.read_bytes() if file.exists() else b""


def killed(stage, checks):
    """The report is on the disk before the user sees anything."""
    dialog = ErrorDialog(stage, "8 short")
    checks.that(dialog.kill(), "the program is killed with its dialog up")
    written = protocol(stage)
    checks.that(written.startswith(RULE + b"F E H L E R P R O T O K O L L vom ErrorPartner\r\n" + RULE
                                   + TITLE.encode() + b"\r\n" + RULE + b"FEHLERBESCHREIBUNG:\r\n"),
                "its protocol stands in the file", written)
    checks.that(b"Fehler-Nr:\t9 (The list has no such row)\r\n" in written,
                "with number and description", written)
    checks.that(b"Plattform:\tWindows NT\r\n" in written and written.endswith(RULE + b"\r\n"),
                "and it is whole", written)
    return written


def ended(stage, checks, before):
    """The one button that can be offered."""
    dialog = ErrorDialog(stage, "8 short")
    stage.wait_for_focus(dialog.shown.handle)
    dialog.picture("end-offered")
    form = dialog.form()
    checks.equal((form.client.width, form.client.height), (481, 340), "the inner area fits the frames")
    middle = form.place.middle
    checks.that(abs(middle[0] - 800) <= 1 and abs(middle[1] - 600) <= 1, "the form stands in the screen's middle",
                form.place)
    frames = [(frame.place.top - form.client.top, frame.place.height) for frame in dialog.visible("KestrelFrame")]
    checks.equal(frames, [(0, 65), (65, 105), (170, 113), (283, 57)], "the frames stand below each other")
    checks.equal([window.text for window in dialog.visible("Button")], [END], "one button can be seen")
    checks.that(not stage.look().top("Behind")[0].enabled, "the form behind is held")
    checks.equal(form.style & 0x000F0000, 0, "there is no close, minimise or maximise box and no frame to drag")
    stage.screen.key("alt+F4")
    stage.screen.key("Escape")
    for mnemonic in ("alt+d", "alt+s", "alt+e", "alt+w", "alt+h", "alt+n", "alt+p"):
        stage.screen.key(mnemonic)
    checks.that(stays(lambda: dialog.form() and stage.witness.runs(dialog.process)
                      and not stage.look().top(class_name="#32770"), 1), "no key gets round the button")
    stage.screen.key("Tab", "Tab", "Tab")
    focus = stage.look().focus
    checks.that(focus in [window.handle for window in dialog.visible("Button") + dialog.visible("ListBox")],
                "the Tab key stops at what can be seen only")
    stage.screen.click(*dialog.labelled(END).place.middle)
    checks.equal(stage.witness.exit_code(dialog.process), 3, "the button ends it with its number")
    written = protocol(stage)
    checks.that(written.startswith(before) and written.count(b"F E H L E R") == 2, "two reports, the older one first")


def no_way_out(stage, checks):
    dialog = ErrorDialog(stage, "7 short")
    stage.wait_for_focus(dialog.shown.handle)
    dialog.picture("no-way-out")
    checks.equal(dialog.visible("Button"), [], "without its bit no button can be seen")
    stage.screen.key("alt+b")
    stage.screen.key("Return")
    stage.screen.key("alt+F4")
    checks.that(stays(lambda: dialog.form() and stage.witness.runs(dialog.process), 1), "the dialog stays")
    checks.that(dialog.kill(), "and is killed")


def long_texts(stage, checks):
    dialog = ErrorDialog(stage, "15 long")
    stage.wait_for_focus(dialog.shown.handle)
    dialog.picture("long-texts")
    description, module, line = (dialog.labelled(text) for text in ("9 (The list", "A module", "0"))
    checks.equal((description.place.width, description.place.height), (339, 33), "a long description has its room")
    checks.equal((module.place.top, line.place.top), (description.place.top + 32, description.place.top + 64),
                 "and the lines under it their places")
    checks.that(module.place.width > 250 and line.place.width < 30, "the other labels are as wide as their text",
                (module.place, line.place))
    stage.screen.key("alt+b")
    checks.equal(stage.witness.exit_code(dialog.process), 3, "the button's mnemonic ends it")
    written = protocol(stage)
    checks.that(b", and so on, )\r\n" in written, "the protocol has the whole description")
    last = written[written.rindex(b"CALLSTACK:"):]
    checks.that(last.count(b"\r\n          ") == 40 + 3, "and the latest forty lines of the trace", last)


def saved(stage, checks):
    file = stage.prefix.path(FOLDER + "\\error-dialog.ERR")
    text = f"Das Fehlerprotokoll wurde in die Datei '{FOLDER}\\error-dialog.ERR' geschrieben !"
    dialog = ErrorDialog(stage, "8 short 1")
    stage.wait_for_focus(dialog.shown.handle)
    stage.screen.key("alt+b")
    told = poll(lambda: stage.look().top("Kestrel", "#32770"))
    checks.that(told and any(window.text == text for window in told[0].inside()), "a saved protocol is told of")
    stage.picture("saved")
    checks.that(file.read_bytes().endswith(RULE + b"\r\n"), "it stands in its file")
    stage.wait_for_focus(told[0].handle)
    stage.screen.key("Return")
    checks.equal(stage.witness.exit_code(dialog.process), 3, "the program goes on")


def unwritable(stage, checks):
    """A folder stands where the protocol file should: the failure inside the component ends the program."""
    file = stage.prefix.path(FOLDER + "\\error-dialog.EPT")
    file.unlink()
    file.mkdir()
    process = stage.witness.run(f"{PROGRAM} 8 short")
    told = poll(lambda: stage.look().top("Kestrel", "#32770"), 60)
    text = "Run-time error '75':\r\n\r\nPath/File access error"
    checks.that(told and any(window.text.replace("\r", "") == text.replace("\r", "") for window in told[0].inside()),
                "a protocol file that cannot be written is the runtime's error",
                told and [window.text for window in told[0].inside()])
    checks.that(not stage.look().top(TITLE, "KestrelForm"), "and the dialog does not come up")
    stage.picture("unwritable")
    stage.wait_for_focus(told[0].handle)
    stage.screen.key("Return")
    checks.equal(stage.witness.exit_code(process), 0, "the program is at its end")
    file.rmdir()


def story(stage, checks):
    stage.prefix.put([paths.built(stage.bits, "error-dialog.exe")], FOLDER)
    written = killed(stage, checks)
    ended(stage, checks, written)
    no_way_out(stage, checks)
    long_texts(stage, checks)
    saved(stage, checks)
    unwritable(stage, checks)


if __name__ == "__main__":
    play(__file__, story)
