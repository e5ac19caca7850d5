#!/usr/bin/env python3
"""Shows Kestrel beside the stand-in EAGLE. On a display the windows are the user's; without one the scene is played
in a virtual display, each step is printed with what it saw, and pictures, a moving one of the whole (demo.gif) and
result.txt are left in build/demo.

Started by run.sh, and by pictures.py, which copies the moving picture into docs.
"""

import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from driver import paths, settings  # noqa: E402, the way to it stands above
from driver.checks import Checks  # noqa: E402
from driver.desktop import Rect  # noqa: E402
from driver.display import UserDisplay  # noqa: E402
from driver.film import Film  # noqa: E402
from driver.stage import Stage  # noqa: E402
from driver.waiting import poll  # noqa: E402

BITS = "win32"
PICTURES = paths.BUILD / "demo"
MOVING = "demo.gif"
# In the middle of the screen, where dialogs come; as wide as a README shows it without making it smaller.
SCREEN_USED = Rect(350, 270, 1250, 930)
EDITORS = (Rect(354, 274, 798, 594), Rect(802, 274, 1246, 594), Rect(578, 602, 1022, 922))
NOTEPAD = Rect(600, 450, 1100, 750)
FOLDER, FILE = "C:\\work", "assembly.txt"
SETTINGS = settings.start_set() + "\n[toolbar]\nautoToolbar=1\n"  # it ends with EAGLE


def number(kind, name):
    """Place of a button in the toolbar of a kind."""
    return [row["name"] for row in settings.buttons(SETTINGS, kind)].index(name)


class Scene:
    """What the steps of the scene share."""

    def __init__(self, stage, checks):
        self.stage = stage
        self.checks = checks
        self.film = Film(stage.screen, PICTURES / "film", SCREEN_USED)


def three_editors(stage, eagle):
    """With the numbers that EAGLE gives its windows, side by side."""
    editors = stage.three_editors(eagle)
    for editor, place in zip(editors.values(), EDITORS):
        editor.count()
        editor.place(place.left, place.top, place.width, place.height)
    return editors


def appear(scene, editors):
    stage, checks = scene.stage, scene.checks
    for kind, editor in editors.items():
        toolbar = stage.toolbar(editor)
        seen = "none"
        if toolbar:
            host = stage.look(editor).windows[editor.handle]
            left, top = toolbar.form.place.left - host.client.left, toolbar.form.place.top - host.client.top
            seen = f"{len(toolbar.buttons)} buttons at {left}, {top} in a window {host.place.width} wide"
        checks.that(toolbar, f"{kind}: a toolbar stands in the window: {seen}")
        checks.that(stage.painted(editor), f"{kind}: all its buttons are painted")
    stage.picture("1-toolbars", SCREEN_USED)
    scene.film.still(2)


def press(scene, kind, editor, name):
    """Moves to a button, so that the film shows it, and clicks it."""
    place = scene.stage.toolbar(editor).buttons[number(kind, name)].place
    scene.stage.screen.point(*place.middle)
    scene.film.still(0.8)
    scene.stage.click_button(editor, number(kind, name))


def typed(scene, kind, editor, before, expected, how):
    poll(lambda: len(editor.executed()) > before)
    came = editor.executed()[before:]
    scene.stage.painted(editor)
    scene.film.still(1.5)
    scene.checks.that(came == [expected], f"{kind}: {how}; its command field ran {came}", f"expected {expected!r}")


def click(scene, kind, editor, name, expected):
    before = len(editor.executed())
    press(scene, kind, editor, name)
    typed(scene, kind, editor, before, expected, f"a click on \"{name}\"")


def ask(scene, kind, editor, name, title, answers, picture):
    """Each of the answers is entered; the last closes the dialog."""
    stage, checks = scene.stage, scene.checks
    press(scene, kind, editor, name)
    dialog = poll(lambda: stage.look().top(title))
    if not checks.that(dialog, f"{kind}: a click on \"{name}\" opens the dialog \"{title}\""):
        return False
    stage.wait_for_focus(dialog[0].handle)
    for answer in answers[:-1]:
        stage.screen.type(answer)
        stage.screen.key("Return")
    stage.screen.type(answers[-1])
    stage.screen.still(dialog[0].place)
    stage.picture(picture)
    scene.film.still(2)
    stage.screen.key("Return")
    return True


def ask_and_type(scene, kind, editor, name, answer, expected):
    before = len(editor.executed())
    if ask(scene, kind, editor, name, "Input Parameter", [answer], "3-input-box"):
        typed(scene, kind, editor, before, expected, f"{answer} and Enter")


def open_text(scene, kind, editor):
    """The notepad shows the file that is chosen."""
    stage = scene.stage
    if not ask(scene, kind, editor, "Text file", "Which text file?", [FOLDER, FILE], "4-file-dialog"):
        return
    notepad = poll(lambda: stage.look().top(FILE.partition(".")[0]))
    if scene.checks.that(notepad, f"{kind}: {FILE} and Enter; the notepad shows it"):
        stage.screen.place(FILE.partition(".")[0], NOTEPAD)
        poll(lambda: stage.look().windows[notepad[0].handle].place.width <= NOTEPAD.width + 20)
        stage.screen.still(NOTEPAD)
        scene.film.still(1.5)
        stage.witness.order("terminate", notepad[0].process)
        poll(lambda: not stage.look().top(FILE.partition(".")[0]))


def tip(scene, editor):
    stage, checks = scene.stage, scene.checks
    place = stage.toolbar(editor).buttons[number("library", "Add layers")].place
    stage.screen.point(place.left, place.bottom + 200)
    stage.screen.point(*place.middle)
    checks.that(poll(lambda: stage.look().top(class_name="tooltips_class32")),
                "library: a tool tip comes under the mouse")
    stage.picture("5-tool-tip", SCREEN_USED)
    scene.film.still(2)


def play(stage, checks):
    scene = Scene(stage, checks)
    stage.prefix.path(FOLDER).mkdir()
    (stage.prefix.path(FOLDER) / FILE).write_text("U1 bottom, the rest top\n", encoding="ascii")
    eagle = stage.start_eagle()
    editors = three_editors(stage, eagle)
    checks.say("   EAGLE shows " + ", ".join(window.text for window in stage.look().top(class_name="EagleEditor")))
    kestrel = stage.start_kestrel(SETTINGS)
    board, schematic, library = editors.values()
    appear(scene, editors)
    click(scene, "board", board, "Ratsnest", "ratsnest")
    click(scene, "schematic", schematic, "ERC", "erc")
    click(scene, "library", library, "Redraw", "window;")
    for editor in editors.values():
        stage.painted(editor)
    stage.picture("2-clicked", SCREEN_USED)
    ask_and_type(scene, "board", board, "Rip up", "GND VCC;", "ripup GND VCC;")
    open_text(scene, "board", board)
    tip(scene, library)
    scene.film.cut(PICTURES / MOVING)
    eagle.order("quit")
    code = stage.witness.exit_code(kestrel)
    checks.that(code == 0, f"EAGLE is closed; Kestrel ends itself a few seconds later with code {code}")


def leave_to_user(stage):
    eagle = stage.start_eagle()
    three_editors(stage, eagle)
    kestrel = stage.start_kestrel(SETTINGS)
    print("The windows are yours: click the toolbars in the three editor windows.")
    print("To end press Ctrl+C here, or close EAGLE's control panel, which stands behind the board: Kestrel follows some "
          "seconds later.", flush=True)
    try:
        while stage.witness.alive() and stage.witness.exit_code(kestrel) is None:
            pass
    except KeyboardInterrupt:
        pass


class Report(Checks):
    """Keeps in result.txt what it prints."""

    def say(self, line):
        super().say(line)
        with (PICTURES / "result.txt").open("a", encoding="utf-8") as file:
            print(line, file=file)


def main():
    if UserDisplay.there():
        with Stage(BITS, PICTURES, UserDisplay()) as stage:
            leave_to_user(stage)
        return 0
    shutil.rmtree(PICTURES, ignore_errors=True)
    PICTURES.mkdir(parents=True)
    checks = Report()
    with Stage(BITS, PICTURES) as stage:
        play(stage, checks)
    checks.say(f"   pictures in {PICTURES}: {', '.join(sorted(file.name for file in PICTURES.iterdir() if file.suffix in ('.png', '.gif')))}")
    checks.say(checks.summary())
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
