"""What the help gives as examples does what it says: the sample toolbar, the commands, the batch files, the lines of a run
request. They are taken from the pages of the help."""

import re
import sys

from play import play

from driver import paths, settings
from driver.stage import KESTREL
from driver.waiting import poll

sys.path.insert(0, str(paths.PROJECT / "resources" / "help"))

import book  # noqa: E402, the way to it stands above

LIST = "C:\\work\\parts list.txt"
NOTES = "C:\\work\\notes.txt"
INSTALLED = re.search(r'^InstallDir "\$LOCALAPPDATA(.*)"$', (paths.PROJECT / "packaging" / "kestrel.nsi").read_text(encoding="utf-8"),
                      re.MULTILINE).expand(r"%LOCALAPPDATA%\1")


def page(language, name):
    return next(found for found in book.pages(language) if found.topic.name == name)


def here(batch):
    """A batch file of the help with the folder in which Kestrel stands for a scene."""
    return batch.replace(f"KESTREL={INSTALLED}\n", f"KESTREL={KESTREL}\n")


def samples(language, name):
    """The listings of a page."""
    return ["".join(element.itertext()).strip("\n") + "\n" for element in page(language, name).elements("pre")]


def commands():
    """The EAGLE commands in the first table of examples."""
    table = page("en", "examples").elements("table")[0]
    return [book.text_of(code) for row in table for cell in list(row)[1:2] for code in cell.iter("code")]


def typed(command):
    """What reaches EAGLE's command line."""
    return re.sub(r"\{(.)\}", r"\1", command.replace("{kestrelpath}", KESTREL).replace("{ESC}", ""))


def runs(stage, checks, board, number, expected):
    before = len(board.executed())
    stage.click_button(board, number)
    poll(lambda: len(board.executed()) > before)
    checks.equal(board.executed()[before:], [expected], f"EAGLE runs {expected!r}")


def sample_toolbar(stage, checks, eagle, language):
    sample = samples(language, "examples")[0]
    board = eagle.open("board", f"C:\\work\\{language}.brd")
    kestrel = stage.start_kestrel(sample)
    found = stage.toolbar(board)
    if checks.that(found and len(found.buttons) == 4, f"{language}: the sample toolbar has three buttons and Config"):
        checks.equal([button.separator for button in found.bar.buttons], [False, False, True, False, False],
                     f"{language}: its gap is in its place")
        runs(stage, checks, board, 0, "window fit")
        stage.click_button(board, 2)
        box = poll(lambda: stage.look().top("Input Parameter"))
        question = settings.rows(sample, "board")[3]["param"]
        checks.that(box and question in [child.text for child in box[0].inside()], f"{language}: it asks {question!r}")
        stage.screen.key("Escape")
    stage.witness.order("terminate", kestrel)
    board.close()


def all_commands(stage, checks, eagle):
    board = eagle.open("board", "C:\\work\\demo.brd")
    rows = [settings.button(f"button {command}", command) for command in commands()]
    checks.that(len(rows) > 10, "the help gives more than ten commands")
    rows.append(settings.button("view", "C:\\work\\view.bat", settings.PROGRAM, settings.FILE_DIALOG, param="Which file?"))
    stage.start_kestrel(settings.made(board=rows))
    for number, command in enumerate(commands()):
        runs(stage, checks, board, number, typed(command))
    stage.click_button(board, len(rows) - 1)
    dialog = poll(lambda: stage.look().top("Which file?"))
    if checks.that(dialog, "the button for the batch file asks for a file"):
        stage.wait_for_focus(dialog[0].handle)
        stage.screen.type(LIST)
        stage.screen.key("Return")
    opens(stage, checks, LIST, "view.bat opens a file whose name has a blank")
    stage.witness.run(f'C:\\windows\\system32\\cmd.exe /c C:\\work\\view.bat "{LIST}"')
    opens(stage, checks, LIST, "and one that comes in quotes")


def opens(stage, checks, file, words):
    """A program shows the file; it is closed again."""
    name = file.rpartition("\\")[2]
    found = poll(lambda: stage.look().top(name))
    if checks.that(found, words):
        stage.witness.order("terminate", found[0].process)
        poll(lambda: not stage.look().top(name))


def request(stage, checks, line, file):
    stage.prefix.path("C:\\kestrel\\execute.txt").write_bytes(line.encode("cp1252") + b"\r\n")
    opens(stage, checks, file, f"the line {line!r} opens the file")
    checks.that(not stage.prefix.path("C:\\kestrel\\execute.txt").exists(), "the file with the request has gone")


def requests(stage, checks):
    lines = [book.text_of(list(row)[0]) for row in page("en", "run-request").elements("table")[0]][1:]
    request(stage, checks, lines[0].replace(".pdf", ".txt"), LIST)
    request(stage, checks, lines[1], NOTES)
    for language in book.LANGUAGES:
        batch = here(samples(language, "run-request")[0].replace(".pdf", ".txt"))
        checks.that(f"KESTREL={KESTREL}\n" in batch, f"{language}: show.bat names the installer's folder")
        stage.prefix.path("C:\\work\\show.bat").write_bytes(batch.replace("\n", "\r\n").encode("cp1252"))
        stage.witness.run("C:\\windows\\system32\\cmd.exe /c C:\\work\\show.bat")
        opens(stage, checks, LIST, f"{language}: show.bat has Kestrel open a file")


def story(stage, checks):
    folder = stage.prefix.path("C:\\work")
    folder.mkdir()
    for file in (LIST, NOTES):
        stage.prefix.path(file).write_text("nothing\n", encoding="ascii")
    batch = next(sample for sample in samples("en", "programs") if "view.bat" in sample)
    stage.prefix.path("C:\\work\\view.bat").write_bytes(batch.replace("\n", "\r\n").encode("cp1252"))
    # Wine knows what opens a text file, but not that .txt is one.
    stage.witness.exit_code(stage.witness.run("C:\\windows\\system32\\reg.exe add HKCR\\.txt /ve /d txtfile /f"))
    eagle = stage.start_eagle()
    for language in book.LANGUAGES:
        sample_toolbar(stage, checks, eagle, language)
    all_commands(stage, checks, eagle)
    requests(stage, checks)


if __name__ == "__main__":
    play(__file__, story)
