"""What there is on the walk's stage: EAGLEs, their windows, the settings, and what is known of each."""

import random
from collections import Counter
from dataclasses import dataclass

from driver import settings
from driver.eagle import Editor
from driver.setup import Setup
from driver.settings import button
from driver.stage import Stage
from driver.tray import Tray
from driver.waiting import LIMIT, poll
from walk import rules

KINDS = ("board", "schematic", "library")
NAMES = {"en": {"board": "Board", "schematic": "Schematic", "library": "Library"},
         "de": {"board": "Board", "schematic": "Schaltplan", "library": "Bibliothek"}}
EXTENSIONS = {"board": "brd", "schematic": "sch", "library": "lbr"}
PRODUCT = "EAGLE 5.11.0 Light"

INPUT_BOX, FILE_DIALOG = "Input Parameter", "Which file?"
NOTEPAD = "C:\\windows\\notepad.exe"
ROWS = [button("Fit", "window fit"), button("Ask", "ripup", dialog=settings.INPUT_BOX, param="Which?"),
        button("-" * 34, "", settings.SEPARATOR),
        button("File", "run", dialog=settings.FILE_DIALOG, param=FILE_DIALOG),
        button("Note", NOTEPAD, settings.PROGRAM)]


class WalkFailed(Exception):
    """Something does not hold that must."""


class WatchedStage(Stage):
    """Whoever looks at the desktop, what must hold at any moment is looked at too."""

    watch = None

    def look(self, editor=None):
        desktop = super().look(editor)
        if self.watch:
            self.watch(desktop)  # pylint: disable=not-callable; set by the world
        return desktop


@dataclass
class Window:
    """An editor window of a running EAGLE."""

    editor: Editor
    kind: str
    file: str  # in its title; empty as long as that is no editor's
    title: str
    minimised: bool = False
    left: int | None = None  # of its toolbar, pixels in the window; None as long as it has none
    calculator: bool = False

    @property
    def handle(self):
        return self.editor.handle


class World:
    def __init__(self, stage, seed):
        self.stage = stage
        self.random = random.Random(seed)
        self.tray, self.setup = Tray(stage), Setup(stage)
        self.mended = seed % 2 == 0
        self.calculators = self.random.random() < 0.7
        self.eagles, self.windows = [], []
        self.sleeping = None  # the EAGLE that hangs
        self.started = Counter()  # toolbars that have been made, by kind
        self.files = {}  # latest file of a kind that has got a toolbar; None where that is not certain
        self.names = 0
        self.looks = 0
        self._fronts = 0
        self.kestrel = stage.start_kestrel(self._settings())
        self.posted = 0  # what the witness did to the program, not to be seen by a user
        stage.watch = self._watch

    def _settings(self):
        unit = f"[Unit]\nVisible={int(self.calculators)}\n"
        return f"[global]\nlanguage=10000\nmend={int(self.mended)}\n{unit}" + settings.made(
            {"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"}, board=ROWS, schematic=ROWS, library=ROWS)

    @property
    def inputs(self):
        """Presses of buttons, keys, and what the EAGLEs and the system were made to do."""
        return self.stage.screen.inputs + self._past + sum(eagle.orders for eagle in self.eagles) + self.posted

    _past = 0

    def _watch(self, desktop):
        self.looks += 1
        self.expect(not (wrong := rules.at_any_moment(self, desktop)), wrong)

    @staticmethod
    def expect(condition, words):
        if not condition:
            raise WalkFailed(words)
        return condition

    def wait(self, condition, words, seconds=LIMIT):
        """Gives what the condition does."""
        return self.expect(poll(condition, seconds), words)

    def one(self, of):
        return self.random.randrange(of) == 0

    # EAGLE

    def start_eagle(self):
        self.names += 1
        self.eagles.append(self.stage.start_eagle(f"eagle{self.names}"))

    def gone(self, eagle):
        """It has ended."""
        self._past += eagle.orders
        self.eagles.remove(eagle)
        self.windows = [window for window in self.windows if window.editor.eagle is not eagle]

    def title(self, kind, file):
        """One of an editor, or of none without a file."""
        if not file:
            self.names += 1
            return f"Letter {self.names}"
        language = self.random.choice(("en", "en", "de"))
        package = " (R0402)" if kind == "library" else ""
        count = f"{self.random.randrange(1, 9)} " if self.one(3) else ""
        return f"{count}{NAMES[language][kind]} - {file}{package} - {PRODUCT}"

    def file(self, kind):
        self.names += 1
        return f"C:\\work\\w{self.names}.{EXTENSIONS[kind]}"

    def kinds(self):
        """Those of which a window may be opened. Without the mends each tick makes another toolbar for a library beyond the
        schematics."""
        waiting = Counter(window.kind for window in self.windows if window.left is None)
        libraries, schematics = self.started["library"] + waiting["library"], self.started["schematic"]
        return [kind for kind in KINDS if kind != "library" or self.mended or libraries < schematics]

    def open(self, kind, file, eagle):
        title = self.title(kind, file)
        self.windows.append(Window(eagle.open_titled(kind, title), kind, file, title))
        return self.windows[-1]

    # The desktop

    def ours(self, desktop):
        return [window for window in desktop.windows.values() if window.process == self.kestrel]

    def awake(self, window):
        return window.editor.eagle is not self.sleeping

    def fronts(self):
        """Titles that have been in front since the last call, be it for a moment."""
        events = self.stage.witness.events("front")
        seen = [event.words[1] for event in events[self._fronts:]]
        self._fronts = len(events)
        return seen

    def settle(self):
        """Waits until all holds that must when nothing happens, and learns what is new."""
        wrong, desktop = "", None

        def rests():
            nonlocal wrong, desktop
            desktop = self.stage.look()
            wrong = rules.at_rest(self, desktop)
            return not wrong
        if not poll(rests):
            raise WalkFailed(wrong)
        self._learn(desktop)
        self.expect(not (wrong := rules.settings_wrong(self)), wrong)

    def _learn(self, desktop):
        new = Counter()
        for window in self.windows:
            found = self.stage.toolbars(window.editor, desktop)
            if window.left is None and found:
                window.left = rules.left_of(found[0].form, desktop.windows[window.handle])
                window.calculator = self.calculators
                new[window.kind] += 1
                self.files[window.kind] = window.file if new[window.kind] == 1 else None
        self.started += new

    def choices(self, wanted=lambda window: True):
        """Windows that the user can work in."""
        return [window for window in self.windows if not window.minimised and self.awake(window) and wanted(window)]

    def take(self, window):
        """The user chooses a window in the task bar and clicks into its command field."""
        self.wait(lambda: self.stage.screen.activate(window.title) or self.stage.wait_for_focus(window.handle, 2),
                  "a window that is chosen gets the keys")
        desktop = self.stage.look()
        field = self.stage.field(window.editor, desktop).place
        place = field.left + 15, field.middle[1]
        self.expect(self.free(window, place, desktop), "a window that is chosen is before the others")
        self.stage.screen.click(*place)
        self.wait(lambda: self.stage.command_field_focused(window.editor), "a click gives the command field the keyboard")
        self.stage.screen.key("End")  # the click may have been in the middle of what is typed

    def given_back(self, window, words):
        """A key that the user types now arrives in its command field."""
        self.wait(lambda: self.stage.command_field_focused(window.editor), words)
        if self.one(3):
            self.expect(self.stage.wait_for_focus(window.handle), words)
            before = self.stage.command_field(window.editor).text
            self.stage.screen.type("k")
            self.wait(lambda: self.stage.command_field(window.editor).text == before + "k", f"{words}: a key arrives in it")

    def free(self, window, place, desktop):
        """Whether a click at the place of the screen reaches what is in this window."""
        host = desktop.windows[window.handle]
        if not rules.holds(host.client, place):
            return False
        above = next((top for top in desktop.top() if rules.holds(top.place, place)), None)
        return above is host

    def buttons(self, window):
        """Numbers of its toolbar's buttons, with their places, that a click reaches once it is in front."""
        desktop = self.stage.look()
        found = self.stage.toolbars(window.editor, desktop)
        places = [button.place.middle for button in found[0].buttons] if found else []
        return [(number, place) for number, place in enumerate(places) if self.free(window, place, desktop)]

    def rows(self, kind):
        return settings.buttons(self.stage.settings(), kind)
