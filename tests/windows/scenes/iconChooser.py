"""The icon chooser of our own, which comes up because Wine's shell has none: with the mouse, with keys, in both
languages. A button of the program with the controls opens it for the icon that its first field names."""

from controls import Controls
from play import play

from driver.waiting import poll

LIBRARY = "C:\\windows\\system32\\shell32.dll"  # it has more icons than go on two pages
NOTES = "C:\\work\\notes.txt"
BOARD, SCHEMATIC = "C:\\kestrel\\brd.ico", "C:\\kestrel\\sch.ico"
TITLES = {"i": "Choose Icon", "y": "Symbol auswählen"}  # by the mnemonic of the button that opens it
CELL = 56, 60  # pixels from icon to icon
PAINTED = 40  # colours that no grid without its icons has


class Chooser:
    def __init__(self, stage, checks):
        self._stage = stage
        self._checks = checks
        self.controls = Controls(stage)
        self._back()

    def _back(self):
        return self._stage.wait_for_focus(self.controls.form().handle)

    def open(self, reference, mnemonic="i"):
        """Opens it from the program's form, which has the keyboard."""
        self._stage.screen.click(*self.controls.of_class("Edit")[0].place.middle)
        self._stage.screen.key("ctrl+a")
        if reference:
            self._stage.screen.type(reference)
        else:
            self._stage.screen.key("Delete")
        self._stage.screen.key(f"alt+{mnemonic}")
        self._title = TITLES[mnemonic]
        up = poll(lambda: self.controls.form(self._title))
        self._checks.that(up, f"{reference!r}: the chooser is up")
        self._checks.that(self._stage.wait_for_focus(up.handle), f"{reference!r}: it has the keyboard")

    def closed(self, chosen, words):
        """Waits until it has closed with this result."""
        told = self.controls.told("icon", chosen)
        self._checks.that(told, words, [line for line in self.controls.rest() if line[0] == "icon"])
        self._checks.that(self._back(), f"{words}: the form behind it has the keyboard again")

    def chosen_index(self):
        """Waits for what it gives; to be taken by closed()."""
        told = poll(lambda: [detail for event, detail in self.controls.rest() if event == "icon"])
        return int(told[0].rsplit(",", 1)[1])

    @property
    def window(self):
        return self.controls.form(self._title)

    def _inside(self, class_name):
        return [window for window in self.window.inside() if window.class_name == class_name and window.visible]

    @property
    def grid(self):
        """None while a text stands in its place."""
        found = self._inside("SysListView32")
        return found[0] if found else None

    @property
    def field(self):
        return self._inside("Edit")[0]

    def button(self, caption):
        return [window for window in self._inside("Button") if window.text.replace("&", "") == caption][0]

    def says(self, message):
        return poll(lambda: self.grid is None and message in [label.text for label in self._inside("Static")])

    def focused(self, window):
        return self.controls.focused(window)

    def place(self, column, row):
        """Middle of an icon of those in sight."""
        area = self.grid.client
        return area.left + column * CELL[0] + CELL[0] // 2, area.top + row * CELL[1] + CELL[1] // 3

    @property
    def columns(self):
        return self.grid.client.width // CELL[0]


def reference(index, file=LIBRARY):
    return f"{file},{index}"


def looks(checks, stage, chooser):
    chooser.open(reference(12))
    checks.that(chooser.focused(chooser.grid), "the icons have the keyboard first")
    checks.equal(chooser.field.text, LIBRARY, "the present file is named")
    checks.that(poll(lambda: stage.screen.colours(chooser.grid.client) > PAINTED), "the icons are painted")
    form = chooser.controls.form()
    checks.equal(chooser.window.owner, form.handle, "its owner is the form that has called for it")
    checks.that(not form.enabled, "which is held")
    stage.picture("english")
    stage.screen.key("Return")
    chooser.closed(reference(12), "Enter takes the present icon")


def keys(checks, stage, chooser):
    chooser.open(reference(12))
    down = chooser.columns
    stage.screen.key("Escape")
    chooser.closed("", "Esc takes nothing")
    for names, index in ((("Right",), 13), (("Down",), 12 + down), (("Left", "Up"), 11 - down), (("Home",), 0),
                         (("Home", "Left", "Up"), 0)):
        chooser.open(reference(12))
        stage.screen.key(*names, "Return")
        chooser.closed(reference(index), f"{' '.join(names)}, Enter")
    chooser.open(reference(0))
    stage.screen.key("Next")
    stage.picture("page-down")
    stage.screen.key("Next", "Prior", "Return")
    page = chooser.chosen_index()
    checks.that(page >= down * 3 and page % down == 0, "Page Down and Page Up go by pages", page)
    chooser.closed(reference(page), "and Enter takes where they lead")
    chooser.open(reference(page))
    stage.screen.type("25")
    stage.screen.key("Return")
    chooser.closed(reference(25), "typing a number leads to its icon")


def far_away(checks, stage, chooser):
    chooser.open(reference(0))
    stage.screen.key("End", "Return")
    last = chooser.chosen_index()
    checks.that(last > 100, "End leads to the last of many icons", last)
    chooser.closed(reference(last), "and Enter takes it")
    chooser.open(reference(last))
    stage.picture("last")
    stage.screen.click(*chooser.place(0, 0))
    stage.screen.click(*chooser.button("OK").place.middle)
    above = chooser.chosen_index()
    checks.that(0 < above < last and above % 8 == 0, "the chooser has opened where the last icon is in sight", above)
    chooser.closed(reference(above), "a click there and OK take another one")
    chooser.open(reference(last + 1))
    checks.that(not chooser.button("OK").enabled, "with an icon that is not there nothing can be confirmed")
    stage.screen.key("Return", "Home", "Return")
    chooser.closed(reference(0), "until one is selected")


def mouse(checks, stage, chooser):
    chooser.open(reference(0))
    stage.screen.click(*chooser.place(3, 1))
    stage.screen.click(*chooser.button("OK").place.middle)
    chooser.closed(reference(3 + 8), "a click selects, OK takes")
    chooser.open(reference(0))
    stage.screen.double_click(*chooser.place(2, 1))
    chooser.closed(reference(2 + 8), "a double click takes")
    chooser.open(reference(5))
    left, top = chooser.place(2, 1)
    stage.screen.click(left - CELL[0] // 2, top)
    checks.that(chooser.focused(chooser.grid), "a click between the icons")
    stage.screen.key("Return")
    chooser.closed(reference(5), "leaves the one that was selected")
    chooser.open(reference(0))
    stage.screen.wheel_down(*chooser.place(0, 1), 3)
    stage.screen.click(*chooser.place(0, 1))
    stage.picture("wheel")
    stage.screen.key("Return")
    below = chooser.chosen_index()
    checks.that(below > 8 and below % 8 == 0, "the mouse wheel scrolls", below)
    chooser.closed(reference(below), "and a click takes what has come into sight")
    chooser.open(reference(0))
    stage.screen.click(*chooser.button("Cancel").place.middle)
    chooser.closed("", "Cancel takes nothing")
    chooser.open(reference(0))
    stage.screen.key("alt+F4")
    chooser.closed("", "the close box takes nothing")


def tab_order(checks, stage, chooser):
    chooser.open(reference(0))
    order = [chooser.button("OK"), chooser.button("Cancel"), chooser.field, chooser.button("Browse..."), chooser.grid]
    for window in order:
        stage.screen.key("Tab")
        checks.that(chooser.focused(window), f"Tab leads on to {window.text or 'the icons'}")
    stage.screen.key("shift+Tab")
    checks.that(chooser.focused(chooser.button("Browse...")), "Shift+Tab leads back")
    stage.screen.key("alt+f")
    checks.that(chooser.focused(chooser.field), "Alt+F leads to the file")
    stage.screen.key("alt+i")
    checks.that(chooser.focused(chooser.grid), "Alt+I leads to the icons")
    stage.screen.key("Right", "alt+o")
    chooser.closed(reference(1), "Alt+O is OK")
    chooser.open(reference(0))
    stage.screen.key("alt+c")
    chooser.closed("", "Alt+C is Cancel")


def other_file(checks, stage, chooser):
    chooser.open("")
    checks.that(chooser.says("Enter a file that contains icons."), "without a file the chooser asks for one")
    checks.that(chooser.focused(chooser.field), "and the field for it has the keyboard")
    stage.picture("no-file")
    stage.screen.type("C:\\nosuch.exe")
    checks.that(chooser.says("Press Enter to see the icons of this file."), "a name that has been typed waits for Enter")
    stage.screen.key("Return")
    checks.that(chooser.says("This file was not found."), "a file that is not there")
    checks.that(chooser.focused(chooser.field), "leaves the keyboard with the name")
    stage.screen.type(NOTES)
    checks.that(poll(lambda: chooser.field.text == NOTES), "where typing replaces it", chooser.field.text)
    stage.screen.key("Return")
    checks.that(chooser.says("This file contains no icons."), "a file without icons")
    stage.picture("no-icons")
    stage.screen.type(BOARD)
    stage.screen.click(*chooser.button("OK").place.middle)
    checks.that(poll(lambda: chooser.grid), "OK shows the icons of a file that has some")
    checks.that(chooser.focused(chooser.grid), "and leads to them")
    stage.screen.key("Return")
    chooser.closed(reference(0, BOARD), "Enter takes the first one")


def browse(checks, stage, chooser):
    chooser.open(reference(2))
    stage.screen.key("alt+b")
    dialog = poll(lambda: stage.look().top("Open a File with Icons"))
    checks.that(dialog, "Browse opens the file dialog")
    checks.that(not chooser.window.enabled, "which holds the chooser")
    stage.wait_for_focus(dialog[0].handle)
    stage.screen.key("ctrl+a")
    stage.screen.type(SCHEMATIC)
    stage.picture("browse")
    stage.screen.key("Return")
    checks.that(poll(lambda: chooser.field.text == SCHEMATIC), "its file is taken over", chooser.field.text)
    checks.that(chooser.focused(chooser.grid), "its icons have the keyboard")
    stage.wait_for_focus(chooser.window.handle)
    stage.screen.key("Return")
    chooser.closed(reference(0, SCHEMATIC), "Enter takes the first one")


def german(checks, stage, chooser):
    chooser.open(reference(30), "y")
    checks.that(poll(lambda: stage.screen.colours(chooser.grid.client) > PAINTED), "the icons are painted")
    stage.picture("german")
    stage.screen.key("alt+d")
    checks.that(chooser.focused(chooser.field), "Alt+D leads to the file")
    stage.screen.type(NOTES)
    stage.screen.key("Return")
    checks.that(chooser.says("Diese Datei enthält keine Symbole."), "a file without icons")
    stage.picture("german-no-icons")
    stage.screen.key("alt+a")
    chooser.closed("", "Alt+A is Abbrechen")


def story(stage, checks):
    stage.prefix.path(NOTES).parent.mkdir(parents=True)
    stage.prefix.path(NOTES).write_text("nothing\n")
    chooser = Chooser(stage, checks)
    for part in (looks, keys, far_away, mouse, tab_order, other_file, browse, german):
        part(checks, stage, chooser)


if __name__ == "__main__":
    play(__file__, story)
