"""Run requests: an outside program leaves execute.txt in Kestrel's folder, and the shell opens what it names."""

import os

from play import play

from driver import settings
from driver.stage import KESTREL
from driver.waiting import poll, stays

NOTEPAD = "C:\\windows\\notepad.exe"
FILE = KESTREL + "\\execute.txt"


def leave(stage, content):
    """Writes a request as a careful program does: under another name first."""
    written = stage.prefix.path(KESTREL + "\\request.tmp")
    written.write_bytes(content)
    os.rename(written, stage.prefix.path(FILE))


def handled(stage):
    return poll(lambda: not stage.prefix.path(FILE).exists())


def notepads(stage):
    return len(stage.look().running("notepad.exe"))


def register_documents(stage):
    """Files with the extension .note are notepad's."""
    for key, value in ((".note", "kestrel.note"), ("kestrel.note\\shell\\open\\command", f"{NOTEPAD} %1")):
        line = f'reg add "HKLM\\Software\\Classes\\{key}" /ve /d "{value}" /f'
        stage.witness.exit_code(stage.witness.run(line))


def story(stage, checks):
    register_documents(stage)
    stage.prefix.path("C:\\work").mkdir()
    for name in ("my notes.txt", "other.note"):
        stage.prefix.path("C:\\work\\" + name).write_text("text\n")
    board = stage.start_eagle().open("board", "C:\\work\\one.brd")

    stage.prefix.path(FILE).write_bytes(NOTEPAD.encode())
    kestrel = stage.start_kestrel(settings.made({"autoToolbar": 0}))
    checks.that(stage.toolbar(board), "Kestrel is there")
    checks.that(not stage.prefix.path(FILE).exists(), "a request from before the start is deleted")
    checks.equal(notepads(stage), 0, "and nothing was started for it")

    leave(stage, f'{NOTEPAD} "C:\\work\\my notes.txt" rest\r\nC:\\windows\\regedit.exe\r\n'.encode())
    checks.that(handled(stage), "a request is taken")
    checks.that(poll(lambda: stage.look().top("my notes.txt")), "its program runs with the parameters between the quotes")
    checks.equal(len(stage.look().running("regedit.exe")), 0, "the second line has no effect")
    stage.picture("started")

    for words, content in (("an empty one", b""), ("one that begins with a quote", b'"C:\\windows\\notepad.exe" x'),
                           ("a program that is not there", b"C:\\no\\such.exe"), ("100,000 characters", b"x" * 100000),
                           ("1,500 characters", b"x" * 1500), ("more parameters than a command line takes",
                                                               b'C:\\no.exe "' + b"x" * 32000 + b'"'),
                           ("NULs", b"\0\0\0"), ("another encoding", "\ufeffnotepad".encode("utf-16le"))):
        leave(stage, content)
        checks.that(handled(stage), f"a request is taken that opens nothing: {words}")
    checks.that(stays(lambda: stage.witness.runs(kestrel), 1), "Kestrel goes on")
    checks.equal(notepads(stage), 1, "none of them started anything")
    checks.equal(stage.look().top(class_name="#32770"), [], "and none gave a message")

    another = board.eagle.open("board", "C:\\work\\two.brd")
    checks.that(stage.toolbar(another), "the tracker goes on: a new board gets its toolbar")
    leave(stage, b"C:\\work\\other.note")
    checks.that(handled(stage), "a document can be asked for")
    checks.that(poll(lambda: stage.look().top("other.note")), "and is opened by its program")
    checks.that(stays(lambda: stage.witness.runs(kestrel), 1), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
