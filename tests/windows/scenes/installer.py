"""The installer without questions: what it lays down, the program at its place, an update over the running program, a
program that does not end, the removal; what administrators do; and the removal with the settings, which asks."""

import shutil

from play import play

from driver import settings
from driver.installation import DEFAULT, SHORTCUT, Installation
from driver.tray import Tray
from driver.waiting import poll

OTHER = "C:\\B\xfcro und Labor\\Kestrel 5"
INI = "\\kestrel.ini"


def at(folder):
    return f'"{folder}\\kestrel.exe"'


def first_time(stage, checks, setup):
    checks.equal(setup.install(" /LOGON"), 0, "it installs silently")
    standing = setup.standing()
    checks.equal(standing.pop("kestrel.ini", None), setup.files["samples/English/kestrel.ini"],
                 "there were no settings: the buttons to begin with are there, in the user's language")
    checks.that(standing.pop("uninstall.exe", None), "and the uninstaller")
    checks.equal(sorted(standing), sorted(setup.files), "all files of the program stand in the user's folder")
    checks.that(standing == setup.files, "each as it is in the zip")
    checks.that(stage.prefix.path(SHORTCUT).exists(), "the start menu has its entry")
    checks.equal(setup.registered("Run").get("Kestrel"), at(DEFAULT), "it starts with Windows, as was asked for")
    entry = setup.registered("Uninstall\\Kestrel")
    checks.equal([entry.get(name) for name in ("DisplayName", "DisplayVersion", "Publisher", "InstallLocation")],
                 ["Kestrel", setup.version, "The Kestrel team", DEFAULT], "it stands among the installed programs")
    checks.equal(stage.look().running("kestrel.exe"), [], "a silent installation starts nothing")


def runs_there(stage, checks, board, folder, list_text):
    """Gives the process id."""
    kestrel = stage.witness.run(at(folder))
    checks.that(poll(Tray(stage).icon), "the program starts at its place: its icon stands in the tray")
    toolbar = stage.toolbar(board)
    buttons = len(settings.buttons(list_text, "board"))
    if checks.that(toolbar, "the board gets its toolbar"):
        checks.equal(len(toolbar.buttons), buttons + 1, f"with the {buttons} buttons of the list and \"Config\"")
        checks.that(stage.painted(board), "each button has its picture")
    return kestrel


def update(stage, checks, setup, board):
    ini, readme, program = (stage.prefix.path(DEFAULT + name) for name in (INI, "\\README.txt", "\\kestrel.exe"))
    readme.write_text("of an older version")
    program.write_bytes(program.read_bytes() + b"of an older version")
    # As of a version that knew no mends.
    text = ini.read_bytes().replace(b"mend=1\r\n", b"") + b"[Unit]\r\nVisible=1\r\nRightUnit=inch\r\n"
    ini.write_bytes(text)
    stage.prefix.path(SHORTCUT).unlink()
    kestrel = runs_there(stage, checks, board, DEFAULT, text.decode("cp1252"))
    poll(lambda: b"lastBoard" in ini.read_bytes())
    before = ini.read_bytes()
    stage.picture("toolbar")

    checks.equal(setup.install(), 0, "an update over the running program")
    checks.equal(stage.witness.exit_code(kestrel), 0, "the running program was asked to end")
    checks.that(Tray(stage).gone(), "its icon has gone")
    standing = setup.standing()
    checks.equal(standing["kestrel.ini"], before, "every setting is as it was")
    checks.that(b"mend" not in standing["kestrel.ini"], "and the mends stay off")
    checks.that({name: standing[name] for name in setup.files} == setup.files, "the program's files are the new ones")
    checks.equal(setup.registered("Run").get("Kestrel"), at(DEFAULT), "it still starts with Windows")
    checks.that(not stage.prefix.path(SHORTCUT).exists(), "the removed entry of the start menu does not come back")


def does_not_end(stage, checks, setup):
    # Anything that keeps the executable in use will do.
    program = stage.prefix.path(DEFAULT + "\\kestrel.exe")
    shutil.copy(stage.prefix.path("C:\\windows\\notepad.exe"), program)
    before = setup.standing()
    holder = stage.witness.run(at(DEFAULT))
    poll(lambda: stage.look().top("Notepad"))
    checks.equal(setup.install(), 3, "a program that does not end: the update gives up and says so")
    checks.that(setup.standing() == before, "it has changed no file")
    checks.that(stage.witness.runs(holder), "and has ended nothing by force")
    stage.witness.order("terminate", holder)
    stage.witness.exit_code(holder)
    checks.equal(setup.install(), 0, "the next try succeeds")


def removal(stage, checks, setup, board):
    text = setup.standing()["kestrel.ini"]
    kestrel = stage.witness.run(at(DEFAULT))
    stage.click_button(board, len(stage.toolbar(board).buttons) - 1)
    checks.that(poll(lambda: stage.look().top("Configuration", "KestrelForm")), "the program runs and shows its setup")
    checks.that(setup.uninstall(), "it is removed silently all the same")
    checks.equal(stage.witness.exit_code(kestrel), 0, "the program was asked to end")
    checks.that(poll(lambda: list(setup.standing()) == ["kestrel.ini"]), "only the settings are left", list(setup.standing()))
    checks.equal(setup.standing()["kestrel.ini"], text, "as they were")
    checks.equal(setup.registered("Run").get("Kestrel"), None, "it does not start with Windows any more")


def elsewhere(stage, checks, setup, board):
    folder = stage.prefix.path(OTHER)
    folder.mkdir(parents=True)
    (folder / "notes.txt").write_text("the user's")
    checks.equal(setup.install(f" /D={OTHER}"), 0, "a folder with blanks and an umlaut, which has a file of the user's")
    text = setup.standing(OTHER)["kestrel.ini"]
    kestrel = runs_there(stage, checks, board, OTHER, text.decode("cp1252"))
    stage.witness.order("terminate", kestrel)
    checks.that(stage.prefix.path(SHORTCUT).exists(), "the start menu has its entry")
    checks.equal(setup.registered("Run").get("Kestrel"), None, "it does not start with Windows unless asked for")
    checks.that(setup.uninstall(), "it is removed there, too")
    checks.that(poll(lambda: sorted(setup.standing(OTHER)) == ["kestrel.ini", "notes.txt"]),
                "the user's file stays", sorted(setup.standing(OTHER)))
    checks.that(not stage.prefix.path(SHORTCUT).exists(), "the start menu's entry has gone")


def by_administrators(stage, checks, setup):
    """What README tells those who install for others."""
    checks.equal(setup.install(), 0, "it is installed once more")
    kestrel = stage.witness.run("C:\\kestrel\\kestrel.exe")
    # By the window that the installer looks for: the tray may still show the icon of the one before.
    checks.that(poll(lambda: any(window.text == "Kestrel Strip for EAGLE" and window.process == kestrel
                                 for window in stage.look().windows.values())), "a program of another folder runs")
    checks.equal(setup.install(), 0, "an update ends that one, too")
    checks.equal(stage.witness.exit_code(kestrel), 0, "in order")
    checks.equal(setup.run(f"{DEFAULT}\\uninstall.exe /S _?={DEFAULT}"), 0, "a removal that is waited for gives its exit code")
    checks.equal(sorted(setup.standing()), ["kestrel.ini", "uninstall.exe"], "and leaves itself and the settings")


def with_settings(stage, checks, setup):
    """The questions of the removal, answered with the mouse."""
    checks.equal(setup.install(), 0, "it is installed for the last time")
    folder = stage.prefix.path(DEFAULT)
    for extension in ("bak", "sav", "sav~"):
        (folder / f"kestrel.{extension}").write_text("older settings")
    stage.witness.run(f"{DEFAULT}\\uninstall.exe")

    def button(caption):
        for window in stage.look().top(class_name="#32770"):
            for child in window.children:
                if child.text.replace("&", "") == caption and child.visible and child.enabled:
                    return child
        return None

    for caption in ("Uninstall", "Yes"):
        asked = poll(lambda caption=caption: button(caption))
        if checks.that(asked, f"the removal asks, {caption}"):
            stage.screen.click(*asked.place.middle)
    checks.that(poll(lambda: not folder.exists()), "no settings are left, and no folder", sorted(setup.standing()))


def story(stage, checks):
    setup = Installation(stage)
    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    board.place(0, 20, 1590, 560)
    first_time(stage, checks, setup)
    update(stage, checks, setup, board)
    does_not_end(stage, checks, setup)
    removal(stage, checks, setup, board)
    elsewhere(stage, checks, setup, board)
    by_administrators(stage, checks, setup)
    with_settings(stage, checks, setup)


if __name__ == "__main__":
    play(__file__, story)
