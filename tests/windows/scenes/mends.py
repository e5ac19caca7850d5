"""With mend=1: a library first, a dialog chosen in the setup, a save that reaches all windows, what is typed arrives whole,
and EAGLE's numbered windows come to the front."""

from play import play

from driver import settings
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll, stays

INPUT_BOX = "Input Parameter"
ANSWER = "(1 2) 50% C:\\Program Files (x86)\\a+b~.brd"
MINIMISE = 6
SW_ICONIC = 0x20000000  # a window's style while it is an icon
OPTIONS = ("No Dialog", "Add Input Dialog for Parameters", "Add File Dialog")
BEGIN = "[global]\nlanguage=10000\nmend=1\n[Unit]\nVisible=1\n" + settings.made(
    {"oneEAGLE": 1, "EAGLEpath": "C:\\eagle\\eagle.exe"},
    board=[settings.button("Fit", "window fit")], schematic=[settings.button("Show", "show")],
    library=[settings.button("Use", "use")])


def numbered(eagle, number, kind, file, place):
    editor = eagle.open_titled(kind, f"{number} {kind.capitalize()} - C:\\work\\{file} - EAGLE 5.11.0 Light")
    editor.place(*place, 640, 440)
    return editor


def calculator_units(stage, editor):
    """The two labels of the calculator in an editor window, from the left."""
    frames = [child for child in stage.look(editor).windows[editor.handle].children if child.class_name == "KestrelFrame"]
    labels = [child for frame in frames for child in frame.children if child.class_name == "Static"]
    return [label.text for label in sorted(labels, key=lambda label: label.place.left)]


def order(stage, editors):
    """The editors as they stand behind each other."""
    handles = [window.handle for window in stage.look().top()]
    return sorted((editor.handle for editor in editors), key=handles.index)


def one_toolbar(stage, checks, library):
    checks.that(stage.toolbar(library), "a library before any schematic gets a toolbar")
    checks.that(stays(lambda: len(stage.toolbars(library)) == 1, 1), "and no other in five ticks")


def choose_dialog(stage, checks, setup, schematic):
    """On the schematic's own page. Leaves the setup open."""
    checks.that(setup.open(schematic), "the setup opens")
    checks.that(set(OPTIONS) <= set(setup.captions()), "the schematic page's options have their English texts", setup.captions())
    setup.select(0)
    checks.that(setup.shows("Show", "show"), "a click in the list shows its row")
    question = setup.fields()[3]
    checks.that(not question.enabled, "a row without a dialog asks for no text")
    setup.press(OPTIONS[1])
    checks.that(poll(lambda: setup.fields()[3].enabled), "the input dialog is chosen: its text can be entered")
    checks.that(setup.fill(3, "Which?"), "and is")
    stage.picture("options")


def add_and_save(stage, checks, setup):
    setup.press("Add EAGLE Command")
    poll(lambda: setup.texts()[0] == "EAGLE Command")
    checks.that(setup.turn_to(0), "Ctrl+Tab leads to the general page")
    stage.screen.click(*setup.lists()[1].place.middle)
    poll(lambda: stage.look().top(class_name="ComboLBox"))
    stage.screen.key("Home", "Down", "Return")
    checks.that(poll(lambda: setup.lists()[1].text == "Inch"), "Inch is chosen for the right side")
    setup.press("Ok")
    checks.that(setup.gone(), "Ok closes the setup")


def follows(stage, checks, schematics, editors, before):
    for number, editor in enumerate(schematics, 1):
        checks.that(poll(lambda editor=editor: len(stage.toolbar(editor).buttons) == 3),
                    f"schematic {number}: its toolbar has the new button, and the height for it")
    for editor in editors:
        checks.that(poll(lambda editor=editor: calculator_units(stage, editor) == ["mil", "Inch"]),
                    "a calculator that stood has the new unit", calculator_units(stage, editor))
    checks.that(poll(lambda: order(stage, editors) == before), "the windows are behind each other as before",
                (order(stage, editors), before))
    rows = settings.rows(stage.settings(), "schematic")
    checks.equal((rows[0]["dialog"], rows[0]["param"]), ("1", "Which?"), "the choice is stored in its own row")
    checks.equal(settings.rows(stage.settings(), "library")[0]["dialog"], "0", "and in no other")


def typed_whole(stage, checks, schematic):
    stage.click_button(schematic, 0)
    box = poll(lambda: (stage.look().top(INPUT_BOX) or [None])[0])
    checks.that(box and stage.wait_for_focus(box.handle), "the button asks")
    stage.screen.type(ANSWER)
    stage.screen.key("Return")
    poll(schematic.executed)
    checks.equal(schematic.executed(), [f"show {ANSWER}"], "brackets, plus and per cent arrive whole")


def comes_to_front(stage, checks, eagle, board, kestrel):
    eagle.order("show", board.number, MINIMISE)
    checks.that(poll(lambda: stage.look().windows[board.handle].style & SW_ICONIC), "the board is an icon")
    Tray(stage).choose("eagle")
    checks.that(poll(lambda: not stage.look().windows[board.handle].style & SW_ICONIC), "Open EAGLE restores it")
    checks.that(poll(lambda: stage.look().foreground == board.handle), "and it is in front, though its title is numbered")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


def story(stage, checks):
    eagle = stage.start_eagle()
    kestrel = stage.start_kestrel(BEGIN)
    library = numbered(eagle, 1, "library", "parts.lbr", (330, 460))
    one_toolbar(stage, checks, library)
    board = numbered(eagle, 2, "board", "demo.brd", (0, 0))
    stage.toolbar(board)
    # The second covers the first, all but a strip.
    schematics = [numbered(eagle, 3, "schematic", "a.sch", (640, 0))]
    stage.toolbar(schematics[0])
    schematics.append(numbered(eagle, 4, "schematic", "b.sch", (660, 20)))
    stage.toolbar(schematics[1])
    editors = [library, board, *schematics]
    before = order(stage, editors)

    setup = Setup(stage)
    choose_dialog(stage, checks, setup, schematics[1])
    add_and_save(stage, checks, setup)
    follows(stage, checks, schematics, editors, before)
    typed_whole(stage, checks, schematics[1])
    comes_to_front(stage, checks, eagle, board, kestrel)


if __name__ == "__main__":
    play(__file__, story)
