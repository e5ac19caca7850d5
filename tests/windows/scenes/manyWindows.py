"""Hundreds of editor windows: each gets its toolbar once it is in front, and the ticking goes on."""

from play import play

from driver import settings
from driver.settings import button
from driver.waiting import poll

COUNT = {"win32": 300, "win64": 60}
SAMPLE = 10  # windows that are brought to the front
PATIENCE = 60  # seconds for what has to do with all windows


def front_has_toolbar(stage, editors):
    desktop = stage.look()
    front = desktop.top("Board -")[0].handle
    return any(stage.toolbars(editor, desktop) for editor in editors if editor.handle == front)


def raised_gets_toolbar(stage, editor):
    # The window manager, busy with hundreds of windows, may still be putting another one in front.
    editor.to_front()
    return stage.toolbar(editor, 3)


def story(stage, checks):
    count = COUNT[stage.bits]
    eagle = stage.start_eagle()
    buttons = [button("Fit", "window fit"), button("DRC", "drc")]
    kestrel = stage.start_kestrel(settings.made(board=buttons, schematic=buttons))
    eagle.order("many", count, "board", seconds=PATIENCE)
    editors = [eagle.editor(number) for number in range(1, count + 1)]
    checks.that(poll(lambda: front_has_toolbar(stage, editors), PATIENCE), f"of {count} boards the one in front has its toolbar")
    step = count // SAMPLE
    for editor in editors[step - 1:-1:step]:
        checks.that(poll(lambda: raised_gets_toolbar(stage, editor), PATIENCE), f"so has board {editor.number} once it is in front")
    desktop = stage.look()
    counts = [len(stage.toolbars(editor, desktop)) for editor in editors]
    checks.that(max(counts) == 1, "no window has more than one")
    schematic = eagle.open("schematic", "C:\\work\\demo.sch")
    checks.that(stage.toolbar(schematic, PATIENCE), "a schematic opened beside them gets its toolbar")
    stage.click_button(schematic, 1)
    poll(schematic.executed)
    checks.equal(schematic.executed(), ["drc"], "a click still types the command")
    eagle.order("quit", seconds=PATIENCE)
    stage.witness.exit_code(eagle.process)
    board = stage.start_eagle("again").open("board", "C:\\work\\demo.brd")
    checks.that(stage.toolbar(board, PATIENCE), "all closed and EAGLE started again: its board gets a toolbar")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
