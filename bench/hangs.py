"""How long what the user asks for takes while an EAGLE hangs that has the keyboard, until it is seen."""

import os
import time

import raw
from driver import settings
from driver.hungEagle import HungEagle
from driver.settings import button
from driver.stage import KESTREL, Stage
from driver.tray import Tray
from driver.waiting import poll
from measuring import BITS
from work import PICTURES, row

INPUT, FILE, CONFIG = 0, 1, -1  # buttons of each toolbar
ROWS = [button("Input", "ripup", dialog=settings.INPUT_BOX), button("File", "run", dialog=settings.FILE_DIALOG, param="Which file?")]
SETTINGS = "[global]\nlanguage=10000\n" + settings.made({"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"},
                                                         board=ROWS, schematic=ROWS, library=ROWS)
BROKEN = settings.made(library=[button("A", "a", dialog="ask")])
FORM, DIALOG = "KestrelForm", "#32770"
WM_QUERYENDSESSION, WM_ENDSESSION = 0x11, 0x16
NOWHERE = (300, 900)  # on the screen, a place without windows


class Trials:
    def __init__(self, stage):
        self._stage, self._witness, self._tray = stage, stage.witness, Tray(stage)
        self.eagle = HungEagle(stage)
        self._kestrel = None

    def start(self):
        self.eagle.beside.to_front()
        self._kestrel = self._stage.start_kestrel(SETTINGS)
        if not (self._stage.toolbar(self.eagle.beside) and poll(self._tray.icon)):
            raise RuntimeError("the toolbar or the icon is missing")

    def _took(self, words, hangs, prepare, there):
        """Milliseconds until what is asked for is there. `prepare` gives what asks."""
        if hangs and not self.eagle.hang():
            raise RuntimeError(f"{words}: EAGLE has no toolbar or no keyboard")
        ask = prepare()
        begin = time.monotonic()
        ask()
        there()
        took = time.monotonic() - begin
        if hangs and not self.eagle.hangs():
            raise RuntimeError(f"{words}: the EAGLE that hung has woken first")
        return took * 1000

    def _row(self, words, once):
        """First with all that answer, then while one hangs."""
        free, hung = once(False), once(True)
        raw.note("hangs", work=words, hung_ms=hung, free_ms=free)
        return row(f"{words} while an EAGLE hangs", hung, free, "ms", "1000 ms", 0)

    def appears(self, words, prepare, class_name, title, close=None):
        """Of a window; `close` makes it go, by default the key Esc."""
        def once(hangs):
            took = self._took(words, hangs, prepare, lambda: self._witness.order("appears", class_name, title))
            (close or self._escape)()
            poll(lambda: not self._stage.look().top(title, class_name))
            self.eagle.wake()
            return took
        yield self._row(words, once)

    def _escape(self):
        """Once what has come up has the keyboard."""
        self._stage.wait_for_focus(self._stage.look().foreground)
        self._stage.screen.key("Escape")

    def ends(self, words, prepare, class_name=None, title=None):
        """Of Kestrel, or of a window behind which it ends."""
        def once(hangs):
            self.start()
            if class_name:
                took = self._took(words, hangs, prepare, lambda: self._witness.order("appears", class_name, title))
                self._escape()
                self._witness.exit_code(self._kestrel)
            else:
                took = self._took(words, hangs, prepare, lambda: self._witness.exit_code(self._kestrel))
            self.eagle.wake()
            return took
        yield self._row(words, once)

    def new_toolbar(self, kind, extension):
        """Of a window that has just been opened."""
        def once(hangs):
            opened = []
            def ask():
                opened.append(self.eagle.other.open(kind, f"C:\\work\\{kind}{int(hangs)}.{extension}"))
            took = self._took(kind, hangs, lambda: ask,
                              lambda: self._witness.order("appears", FORM, "EAGLE Kestrel Bench", opened[0].handle))
            self.eagle.wake()
            return took
        yield self._row(f"A new toolbar, {kind},", once)

    # What asks, made ready so that only the last step is measured.

    def icon(self):
        place = self._tray.resting().place.middle
        return lambda: self._stage.screen.click(*place)

    def entry(self, name):
        place = self._tray.place_of(self._tray.open(), name)
        return lambda: self._stage.screen.click(*place)

    def button(self, number):
        place = self._stage.toolbar(self.eagle.beside).buttons[number].place.middle
        return lambda: self._stage.screen.click(*place)

    def request(self):
        written = self._stage.prefix.path(KESTREL + "\\request.tmp")
        written.write_text("C:\\windows\\notepad.exe")
        return lambda: os.rename(written, self._stage.prefix.path(KESTREL + "\\execute.txt"))

    def broken_library(self):
        self._stage.write_settings(BROKEN)
        return lambda: self.eagle.other.open("library", f"C:\\work\\broken{time.monotonic()}.lbr")

    def session(self):
        desktop = self._stage.look()
        windows = [window.handle for window in desktop.windows.values() if window.parent == 0 and window.process == self._kestrel]

        def end():
            for message in (WM_QUERYENDSESSION, WM_ENDSESSION):
                for window in windows:
                    self._witness.send("post", window, message, 1, 0)
        return end


def hangs(_display):
    with Stage(BITS, PICTURES) as stage:
        trials = Trials(stage)
        trials.start()
        yield from trials.appears("The tray's menu", trials.icon, "#32768", "",
                                  lambda: stage.screen.click(*NOWHERE))
        yield from trials.appears("Info", lambda: trials.entry("info"), FORM, "", lambda: None)
        yield from trials.appears("The setup from the tray", lambda: trials.entry("configuration"), FORM, "Configuration")
        yield from trials.appears("The setup from another EAGLE", lambda: trials.button(CONFIG), FORM, "Configuration")
        yield from trials.appears("An input box", lambda: trials.button(INPUT), FORM, "Input Parameter")
        yield from trials.appears("A file dialog", lambda: trials.button(FILE), DIALOG, "Which file?")
        yield from trials.appears("A message", lambda: trials.entry("eagle"), DIALOG, "Information")
        for kind, extension in (("board", "brd"), ("schematic", "sch"), ("library", "lbr")):
            yield from trials.new_toolbar(kind, extension)
        yield from trials.appears("The program of a run request", trials.request, "Notepad", "Untitled",
                                  lambda: stage.witness.order("terminate", *stage.look().running("notepad.exe")))
        yield from trials.ends("The box of an error", trials.broken_library, DIALOG, "Kestrel")
        yield from trials.ends("The end by Exit", lambda: trials.entry("exit"))
        yield from trials.ends("The end of the session", trials.session)
