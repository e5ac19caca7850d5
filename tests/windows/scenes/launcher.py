"""The launcher: Kestrel starts EAGLE with the exact command line, or brings a running one to the front."""

from play import play

from driver import settings
from driver.tray import Tray
from driver.waiting import poll, stays

FOLDER = "C:\\EAGLE 6"
PATH = FOLDER + "\\EAGLE.exe"


def started(stage, eagle, count):
    """The command line that the latest stand-in has seen; none if there are not so many yet."""
    events = poll(lambda: eagle.events("started") if len(eagle.events("started")) >= count else None)
    return events[-1].words[0] if events else None


def story(stage, checks):
    stage.prefix.path("C:\\work").mkdir()
    for name in ("a b.brd", "a.sch"):
        stage.prefix.path("C:\\work\\" + name).write_text("")
    eagle = stage.place_eagle(FOLDER)
    tray = Tray(stage)

    options = {"autoToolbar": 0, "autoEAGLE": 1, "oneEAGLE": 1, "EAGLEpath": PATH, "winEAGLE": 3,
               "lastBoard": "C:\\work\\a b.brd", "lastSCH": "C:\\work\\a.sch"}
    kestrel = stage.start_kestrel(settings.made(options))
    line = started(stage, eagle, 1)
    tail = ' -C "edit C:\\work\\a.sch;" C:\\work\\a b.brd'
    checks.that(line in (PATH + tail, f'"{PATH}"{tail}'), "autoEAGLE starts EAGLE with the last files", line)
    opened = poll(lambda: {event.words[1]: event for event in eagle.events("opened")}
                  if len(eagle.events("opened")) == 3 else None)
    checks.that(opened and {"board", "schematic"} <= set(opened), "EAGLE shows the board and the schematic", opened)
    board = eagle.editor(opened["board"].words[0])
    checks.that(stage.toolbar(board), "the board gets its toolbar")

    other = stage.start_eagle("other").open("board", "C:\\work\\over.brd")
    other.place(0, 0, 1600, 1100)
    other.to_front()
    tray.choose("eagle")
    panel = stage.look().top("Control Panel")
    checks.that(poll(lambda: stage.look().top("Control Panel")[0].handle == stage.look().top()[0].handle
                     or stage.look().foreground in [window.handle for window in stage.look().top("Control Panel")]),
                "with oneEAGLE the running control panel comes to the front", [window.text for window in panel])
    checks.equal(len(eagle.events("started")), 1, "and no further EAGLE is started")

    stage.write_settings(settings.made({**options, "oneEAGLE": 0, "winEAGLE": 1}))
    tray.choose("eagle")
    line = started(stage, eagle, 2)
    tail = ' -C "window fit;"C:\\work\\a b.brd'
    checks.that(line in (PATH + tail, f'"{PATH}"{tail}'), "without oneEAGLE a further EAGLE is started, one file without a blank",
                line)
    checks.that(stays(lambda: stage.witness.runs(kestrel), 1), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
