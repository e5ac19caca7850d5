#!/usr/bin/env python3
"""Makes the pictures of all documents from the real program: pictures.py [LANGUAGE] [PICTURE]...

Without arguments all of them: those of the help, in both languages, into resources/help/pictures, a toolbar on a fine screen,
docs/toolbar-150.png, and the moving picture of the demonstration, docs/demo.gif.
Needs dist/win32, the stand-in EAGLE of the 32-bit build and the witness (tools/build.sh i686 dist eagle;
tools/build.sh x86_64 witness).
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from driver import paths, settings  # noqa: E402, the way to it stands above
from driver.desktop import Rect  # noqa: E402
from driver.stage import Stage  # noqa: E402
from driver.tray import Tray  # noqa: E402
from driver.waiting import poll  # noqa: E402
from version import version  # noqa: E402

BITS = "win32"
TARGET = paths.PROJECT / "resources" / "help" / "pictures"
LOCALES = {"en": None, "de": "de_DE"}
OFFSETS = {"en": 10000, "de": 0}  # of the program's texts
COLOURS = 96  # of a picture's palette
SHOWS_VERSION = ("-set", "Kestrel", version(), "-define", "png:include-chunks=tEXt")  # the check of the help looks for it
FILM = "demo.gif"
FINE = "toolbar-150.png"
FINE_DPI = 144
DEMO = Path(__file__).resolve().parent / "demo" / "demo.py"
OWN_WORK = "C:\\work"
FILES = ("demo.brd", "demo.sch", "parts.lbr", "assembly.txt", "notes.txt", "readme.txt")


def configured(language):
    """The settings that a new user begins with, and the calculator on."""
    begin = settings.start_set(language)
    lists = {kind: settings.rows(begin, kind) for kind in settings.SECTIONS}
    options = {"EAGLEpath": "C:\\eagle\\eagle.exe", "winEAGLE": 3, "oneEAGLE": 1}
    return (f"[global]\nlanguage={OFFSETS[language]}\nmend=1\n[Unit]\nVisible=1\nLeftAccuracy=0.##\nRightAccuracy=0.####\n"
            + settings.made(options, **lists))


def keep(stage, target, place, *marks):
    """Keeps a rectangle of the screen as a small picture."""
    stage.screen.picture(target, place)
    subprocess.run(["convert", target, "-strip", "+dither", "-colors", str(COLOURS),
                    "-define", "png:exclude-chunks=date,time", *marks, f"png8:{target}"], check=True)
    print(f"   {target.parent.name}/{target.name}: {place.width} by {place.height}, {target.stat().st_size} bytes", flush=True)


class Artist:
    """Takes the pictures of a language."""

    def __init__(self, stage, language):
        self.stage = stage
        self.language = language
        self.editors = {}

    def set_up(self):
        folder = self.stage.prefix.path(OWN_WORK)
        folder.mkdir()
        for file in FILES:
            (folder / file).write_text("nothing\n", encoding="ascii")
        eagle = self.stage.start_eagle()
        for kind, file in (("board", "demo.brd"), ("schematic", "demo.sch"), ("library", "parts.lbr")):
            self.editors[kind] = eagle.open(kind, f"{OWN_WORK}\\{file}", self.language == "de")
            self.editors[kind].count()
        self.cascade()
        self.stage.start_kestrel(configured(self.language))
        for editor in self.editors.values():
            self.stage.toolbar(editor)
            self.stage.painted(editor)
        # Now and then Wine leaves a picture of the calculator where it stood before it was moved to its place. A window that
        # moves is painted anew.
        self.cascade(1)
        self.cascade()

    def cascade(self, aside=0):
        """The editors just wide enough for their calculators, each with its toolbar to be seen."""
        for number, editor in enumerate(self.editors.values()):
            editor.place(40 - 20 * number + aside, 165 * number, 704, 260)
            editor.to_front()

    @staticmethod
    def frame(window):
        """A top-level window with the frame that the window manager draws: it is thinner than the one Windows reckons with."""
        side, thinner = 1, 9
        return Rect(window.client.left - side, window.place.top + thinner, window.client.right + side,
                    window.client.bottom + side)

    def keep(self, name, place, *marks):
        """Keeps a rectangle of the screen, with a mark that is given as options of `convert`."""
        keep(self.stage, TARGET / self.language / f"{name}.png", place, *marks)

    def rest(self):
        """Puts the mouse where it changes nothing."""
        self.stage.screen.point(1500, 1000)

    def button(self, kind, number):
        self.stage.click_button(self.editors[kind], number)

    def config_button(self, kind):
        self.button(kind, len(settings.buttons(self.stage.settings(), kind)))

    def window(self, title):
        """Waits for a top-level window, in front, and gives it."""
        found = poll(lambda: self.stage.look().top(title))
        if not found:
            raise RuntimeError(f"no window {title!r} comes")
        self.stage.wait_for_focus(found[0].handle)
        return found[0]

    def number(self, kind, path):
        """Place of a button by what it types."""
        return [row["path"] for row in settings.buttons(self.stage.settings(), kind)].index(path)

    def asks_for_file(self, kind):
        """Place of the button that opens a file dialog."""
        rows = settings.buttons(self.stage.settings(), kind)
        return [int(row["dialog"]) for row in rows].index(settings.FILE_DIALOG)

    # The pictures.

    def toolbars(self):
        self.rest()
        desktop = self.stage.look()
        places = [self.frame(desktop.windows[editor.handle]) for editor in self.editors.values()]
        self.keep("toolbars", Rect(min(place.left for place in places), min(place.top for place in places),
                                   max(place.right for place in places), max(place.bottom for place in places)))

    def toolbar(self):
        self.editors["board"].to_front()
        self.stage.painted(self.editors["board"])
        bar = self.stage.toolbar(self.editors["board"])
        place = bar.buttons[self.number("board", "ripup")].place
        self.stage.screen.point(place.left, place.bottom + 200)
        self.stage.screen.point(*place.middle)
        if not poll(lambda: self.stage.look().top(class_name="tooltips_class32")):
            raise RuntimeError("no tool tip comes")
        host = self.frame(self.stage.look(self.editors["board"]).windows[self.editors["board"].handle])
        self.keep("toolbar", Rect(host.right - 360, host.top, host.right + 60, host.top + 200))
        self.rest()
        self.cascade()

    def input_box(self):
        self.editors["board"].to_front()
        self.button("board", self.number("board", "ripup"))
        box = self.window("Input Parameter")
        self.stage.screen.type("GND VCC;")
        field = next(child for child in box.children if child.class_name == "Edit").handle
        poll(lambda: self.stage.look().windows[field].text == "GND VCC;")
        self.keep("input-box", self.frame(box))
        self.stage.screen.key("Escape")
        poll(lambda: not self.stage.look().top("Input Parameter"))
        self.cascade()

    def file_dialog(self):
        self.editors["board"].to_front()
        number = self.asks_for_file("board")
        self.button("board", number)
        title = settings.buttons(self.stage.settings(), "board")[number]["param"]
        dialog = self.window(title)
        for entered in (OWN_WORK, "*.txt"):
            self.stage.screen.type(entered)
            self.stage.screen.key("Return")
            self.rest()
            self.stage.screen.still(dialog.place)  # it shows the folder, or the files, and a new text in its field
        self.keep("file-dialog", self.frame(dialog))
        self.stage.screen.key("Escape")
        poll(lambda: not self.stage.look().top(title))
        self.cascade()

    def tray_icon(self):
        self.rest()
        self.keep("tray-icon", poll(Tray(self.stage).icon).place)

    def tray_menu(self):
        tray = Tray(self.stage)
        place = tray.open().place
        self.stage.screen.still(place)
        self.keep("tray-menu", place)
        self.stage.screen.click(600, 1000)
        poll(lambda: tray.menu() is None)

    def splash(self):
        """It goes after two seconds, and the machine may be slow: taken anew until it has been there all the time."""
        def seen():
            return [form for form in self.stage.look().top(class_name="KestrelForm") if form.place.width > 200]
        for _ in range(10):
            Tray(self.stage).choose("info")
            form = poll(seen)
            if form and self.stage.screen.colours(form[0].client) > 40:
                self.keep("splash", form[0].place, *SHOWS_VERSION)
                if seen():
                    return
            poll(lambda: not seen())
        raise RuntimeError("the splash goes too soon")

    def calculator(self):
        board = self.editors["board"]
        board.to_front()

        def fields():
            window = self.stage.look(board).windows[board.handle]
            return [child for child in window.inside() if child.class_name == "Edit" and child.place.top < window.client.top + 10]
        poll(lambda: len(fields()) == 2)
        left, right = sorted(fields(), key=lambda field: field.place.left)
        self.stage.screen.click(*left.place.middle)
        self.stage.screen.type("100")
        poll(lambda: self.stage.look(board).windows[right.handle].text == "2.54")
        self.rest()
        host = self.frame(self.stage.look(board).windows[board.handle])
        self.keep("calculator", Rect(host.right - 360, host.top, host.right, host.top + 160))
        self.cascade()

    def setup(self, kind, tab, name):
        """The setup as a toolbar opens it, on the page that a tab shows."""
        self.editors[kind].to_front()
        self.config_button(kind)
        title = {"en": "Configuration", "de": "Konfiguration"}[self.language]
        dialog = poll(lambda: self.stage.look().top(title))[0]
        strip = next(child for child in dialog.inside() if child.class_name == "SysTabControl32")
        if tab is not None:
            self.stage.screen.click(strip.place.left + tab, strip.place.top + 28)
        else:
            rows = next(child for child in dialog.inside() if child.class_name == "ListBox" and child.visible)
            self.stage.screen.click(rows.place.left + 40, rows.place.top + 8)
        self.rest()
        self.stage.screen.still(dialog.place)
        self.keep(name, self.frame(dialog))
        self.stage.screen.key("Escape")
        self.cascade()

    def setup_general(self):
        self.setup("board", 40, "setup-general")

    def setup_board(self):
        self.setup("board", None, "setup-board")

    def setup_schematic(self):
        self.setup("schematic", None, "setup-schematic")

    def setup_library(self):
        self.setup("library", None, "setup-library")

    def take(self, names):
        for name in names:
            getattr(self, name.replace("-", "_"))()


ALL = ("toolbars", "toolbar", "input-box", "file-dialog", "setup-general", "setup-board", "setup-schematic",
       "setup-library", "tray-icon", "tray-menu", "splash",
       "calculator")


def film():
    """The demonstration is played in a virtual display, whatever the user has."""
    environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
    subprocess.run([sys.executable, DEMO], env=environment, check=True)
    shutil.copy(paths.BUILD / "demo" / FILM, paths.PROJECT / "docs" / FILM)


def fine():
    """Toolbar and calculator in an EAGLE that sees all pixels of its screen."""
    with Stage(BITS, paths.BUILD / "pictures", dpi=FINE_DPI, pixels=True) as stage:
        board = stage.start_eagle(arguments="-D monitor").open("board", f"{OWN_WORK}\\demo.brd")
        width, height = 1056, 390
        board.place(0, 0, width, height)
        stage.start_kestrel(configured("en"))
        stage.toolbar(board)
        stage.painted(board)
        for aside in (1, 0):  # the calculator is painted where it stands, as in the help's pictures
            board.place(aside, 0, width, height)
        stage.painted(board)
        stage.screen.point(1500, 1000)
        window = stage.look(board).windows[board.handle]
        stage.screen.still(window.place)
        thinner = 26  # the window manager's title bar, at each resolution the same
        keep(stage, paths.PROJECT / "docs" / FINE,
             Rect(window.client.left - 1, window.place.top + thinner, window.client.right + 1, window.client.bottom + 1))


def main(arguments):
    languages = [word for word in arguments if word in LOCALES] or list(LOCALES)
    names = [word for word in arguments if word not in LOCALES] or [*ALL, FINE, FILM]
    if not set(names) <= {*ALL, FINE, FILM}:
        sys.exit(f"{__doc__}\nPictures: {' '.join([*ALL, FINE, FILM])}")
    for name, take in ((FINE, fine), (FILM, film)):
        if name in names:
            take()
            names.remove(name)
    if not names:
        return 0
    for language in languages:
        with Stage(BITS, paths.BUILD / "pictures", locale=LOCALES[language]) as stage:
            artist = Artist(stage, language)
            artist.set_up()
            artist.take(names)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
