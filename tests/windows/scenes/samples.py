"""The buttons to begin with: each has its picture, in both languages; each types what the table says, the notepad starts."""

from play import play

from driver import settings
from driver.tray import Tray
from driver.waiting import poll


def shows(stage, checks, kind, editor, text):
    """Gives the toolbar's buttons beside their rows."""
    rows = settings.buttons(text, kind)
    toolbar = stage.toolbar(editor)
    if not checks.that(toolbar and len(toolbar.buttons) == len(rows) + 1, f"{kind}: {len(rows)} buttons and \"Config\""):
        return []
    checks.that(stage.painted(editor), f"{kind}: each has its picture")
    return list(zip(toolbar.buttons, rows))


def click_all(stage, checks, kind, editor, buttons):
    """Clicks every button that asks for nothing. The same in both languages, as the check of the packages says."""
    expected = []
    for button, row in buttons:
        if int(row["dialog"]) == settings.NONE and int(row["type"]) == settings.COMMAND:
            stage.screen.click(*button.place.middle)
            expected.append(row["path"])
            poll(lambda: len(editor.executed()) == len(expected))
    checks.equal(editor.executed(), expected, f"{kind}: {len(expected)} commands arrive as they stand in the table")


def starts_notepad(stage, checks, kind, buttons):
    button = next(button for button, row in buttons if int(row["type"]) == settings.PROGRAM)
    stage.screen.click(*button.place.middle)
    notepad = poll(lambda: stage.look().running("notepad.exe"))
    if checks.that(notepad, f"{kind}: the notepad starts"):
        stage.witness.order("terminate", notepad[0])


def story(stage, checks):
    eagle = stage.start_eagle()
    for language, folder in settings.samples.FOLDERS.items():
        checks.say(f"   {folder}")
        text = settings.start_set(language)
        editors = stage.three_editors(eagle)
        kestrel = stage.start_kestrel(text)
        for kind, editor in editors.items():
            buttons = shows(stage, checks, kind, editor, text)
            if folder == "English":
                click_all(stage, checks, kind, editor, buttons)
                starts_notepad(stage, checks, kind, buttons)
        stage.picture(f"samples-{language}")
        Tray(stage).choose("exit")
        stage.witness.exit_code(kestrel)
        for editor in editors.values():
            editor.close()


if __name__ == "__main__":
    play(__file__, story)
