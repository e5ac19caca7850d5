"""Program folders of every kind: with umlauts and blanks, with letters that the code page lacks, the root of a drive, one in
which nothing can be written."""

import subprocess
from contextlib import contextmanager

from play import play

from driver import paths, settings
from driver.settings import button
from driver.tray import Tray
from driver.waiting import poll

UMLAUTS = "C:\\Gr\xf6\xdfe & Ma\xdf\\Kestrel \xc4\xd6\xdc 5 (alt)"
FOREIGN = "C:\\\u0141\xf3d\u017a \u65e5\u672c \u0e07\\Kestrel"
ROOT = "C:"
CLOSED = "C:\\closed"
ICON = "{kestrelpath}\\samples\\icons.dll,0"
BUTTONS = [button("Fit", "window fit", tooltip="Fit", icon=ICON),
           button("Copy", "{kestrelpath}\\helper.exe", settings.PROGRAM, tooltip="Helper", icon="{kestrelpath}\\brd.ico,0")]
TEXT = settings.made({"autoToolbar": 0}, board=BUTTONS)


def lay_out(stage, folder, text=TEXT, encoding="cp1252"):
    """A copy of the program folder, with settings and a program beside it."""
    stage.prefix.put(sorted(paths.program_folder(stage.bits).iterdir()), folder + "\\")
    stage.prefix.path(folder + "\\helper.exe").write_bytes(stage.prefix.path("C:\\windows\\notepad.exe").read_bytes())
    ini = stage.prefix.path(folder + "\\kestrel.ini")
    ini.write_bytes(text.replace("\n", "\r\n").encode(encoding))
    return ini


@contextmanager
def closed(folder):
    """Nothing in the folder can be written, not even by root, as whom Wine runs here. Gives whether that could be done."""
    done = subprocess.run(["chattr", "-R", "+i", folder], stderr=subprocess.DEVNULL, check=False)
    try:
        yield done.returncode == 0
    finally:
        subprocess.run(["chattr", "-R", "-i", folder], stderr=subprocess.DEVNULL, check=False)


def works(stage, checks, board, folder, words, command="window fit"):
    """The first button types the command, the second starts the program beside Kestrel. Gives Kestrel's process id."""
    kestrel = stage.witness.run(f'"{folder}\\kestrel.exe"')
    checks.that(poll(Tray(stage).icon), f"{words}: the icon stands in the tray")
    toolbar = stage.toolbar(board)
    if not checks.that(toolbar, f"{words}: the settings are found, the toolbar comes"):
        return kestrel
    checks.equal(len(toolbar.buttons), len(BUTTONS) + 1, f"{words}: with its buttons")
    checks.that(stage.painted(board), f"{words}: their icons are found by the token")
    before = len(board.executed())
    stage.click_button(board, 0)
    poll(lambda: len(board.executed()) > before)
    checks.equal(board.executed()[before:], [command], f"{words}: a button types its command")
    stage.click_button(board, 1)
    helper = poll(lambda: stage.look().running("helper.exe"))
    if checks.that(helper, f"{words}: a button starts a program by the token"):
        stage.witness.order("terminate", helper[0])
        poll(lambda: not stage.look().running("helper.exe"))
    return kestrel


def leave(stage, kestrel):
    Tray(stage).choose("exit")
    stage.witness.exit_code(kestrel)


def remembered(ini):
    return settings.value(ini.read_bytes().decode("cp1252"), "toolbar", "lastboard")


def story(stage, checks):
    eagle = stage.start_eagle()
    for number, (folder, words) in enumerate(((UMLAUTS, "umlauts and blanks"), (FOREIGN, "foreign letters"),
                                              (ROOT, "a drive's root"))):
        board = eagle.open("board", f"C:\\work\\demo{number}.brd")
        board.place(0, 20, 1590, 560)
        ini = lay_out(stage, folder)
        kestrel = works(stage, checks, board, folder, words)
        checks.equal(poll(lambda: remembered(ini)), f"C:\\work\\demo{number}.brd", f"{words}: settings are saved")
        stage.picture(words.replace(" ", "-"))
        leave(stage, kestrel)
        board.close()

    words = "nothing can be written"
    board = eagle.open("board", "C:\\work\\closed.brd")
    board.place(0, 20, 1590, 560)
    ini = lay_out(stage, CLOSED)
    before = ini.read_bytes()
    with closed(ini.parent) as done:
        if not done:
            checks.say("   --    not played: this machine cannot close a folder to root")
            return
        kestrel = works(stage, checks, board, CLOSED, words)
        checks.equal(stage.look().top(class_name="#32770"), [], f"{words}: no message says so")
        leave(stage, kestrel)
    checks.equal(ini.read_bytes(), before, f"{words}: the settings are as they were")


if __name__ == "__main__":
    play(__file__, story)
