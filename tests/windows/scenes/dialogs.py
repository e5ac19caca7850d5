"""Buttons that ask first: the input box and the file dialog, confirmed and cancelled."""

from play import play

from driver import settings
from driver.waiting import poll

INPUT_BOX = "Input Parameter"
FILE = "C:\\work\\cam job.ulp"
CHOSEN = settings.button("A ULP", "run", dialog=settings.FILE_DIALOG, param="Which program?")


def row_number(stage, kind, path):
    """Place of the button with this command in the toolbar."""
    return [row["path"] for row in settings.buttons(stage.settings(), kind)].index(path)


def window(stage, title):
    found = stage.look().top(title)
    return found[0] if found else None


def open_dialog(stage, checks, editor, kind, command, title):
    stage.click_button(editor, row_number(stage, kind, command))
    dialog = poll(lambda: window(stage, title))
    checks.that(dialog, f"{command}: the dialog \"{title}\" opens")
    checks.that(stage.wait_for_focus(dialog.handle), f"{command}: it is in front and has the keyboard")
    return dialog


def typed(stage, checks, editor, before, expected, words):
    poll(lambda: len(editor.executed()) > before)
    checks.equal(editor.executed()[before:], [expected], words)


def cancelled(stage, checks, editor, before, title, words):
    checks.that(poll(lambda: not window(stage, title)), f"{words}: the dialog closes")
    checks.that(poll(lambda: stage.command_field_focused(editor)), f"{words}: the command field has the focus again")
    # Under Wine the X server's focus may be left nowhere when a dialog goes: a click brings it back. What Kestrel
    # would have typed stands before what the user types.
    stage.screen.click(*stage.command_field(editor).place.middle)
    stage.wait_for_focus(editor.handle)
    stage.screen.type("undo")
    stage.screen.key("Return")
    typed(stage, checks, editor, before, "undo", f"{words}: nothing is typed")


def input_box(stage, checks, editor):
    prompt = settings.buttons(stage.settings(), "board")[row_number(stage, "board", "ripup")]["param"]
    before = len(editor.executed())
    dialog = open_dialog(stage, checks, editor, "board", "ripup", INPUT_BOX)
    texts = [inner.text for inner in dialog.inside()]
    checks.that(prompt in texts and "OK" in texts and "Cancel" in texts, "input box: it has prompt, OK and Cancel", texts)
    host = stage.look().windows[editor.handle]
    checks.that(host.enabled, "input box: EAGLE's window is not held by it")
    stage.screen.type("GND VCC")
    stage.picture("input-box")
    stage.screen.key("Return")
    typed(stage, checks, editor, before, "ripup GND VCC", "input box: the text goes behind the command")
    checks.that(poll(lambda: not window(stage, INPUT_BOX)), "input box: it closes")

    for how in ("Escape", "empty"):
        before = len(editor.executed())
        open_dialog(stage, checks, editor, "board", "ripup", INPUT_BOX)
        if how == "Escape":
            stage.screen.type("GND")
            stage.screen.key("Escape")
        else:
            stage.screen.key("Return")
        cancelled(stage, checks, editor, before, INPUT_BOX, f"input box, {how}")


def file_dialog(stage, checks, editor):
    title = CHOSEN["param"]
    before = len(editor.executed())
    open_dialog(stage, checks, editor, "schematic", CHOSEN["path"], title)
    stage.screen.type(FILE)
    stage.picture("file-dialog")
    stage.screen.key("Return")
    typed(stage, checks, editor, before, f"run {FILE}", "file dialog: the file goes behind the command")
    checks.that(poll(lambda: stage.look().windows[editor.handle].enabled), "file dialog: EAGLE's window works again")

    before = len(editor.executed())
    open_dialog(stage, checks, editor, "schematic", CHOSEN["path"], title)
    stage.screen.key("Escape")
    cancelled(stage, checks, editor, before, title, "file dialog, Escape")


def story(stage, checks):
    stage.prefix.path(FILE).parent.mkdir(parents=True)
    stage.prefix.path(FILE).write_text("// nothing\n")
    editors = stage.three_editors(stage.start_eagle())
    begin = settings.start_set()
    kestrel = stage.start_kestrel(settings.made(board=settings.rows(begin, "board"), schematic=[CHOSEN]))
    input_box(stage, checks, editors["board"])
    file_dialog(stage, checks, editors["schematic"])
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
