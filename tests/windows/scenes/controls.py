"""The controls of the form library but for the toolbar, used with mouse and keyboard as a user does; the program of its
own that shows them tells in its journal what their events said."""

from play import play

from driver import paths
from driver.waiting import poll

FOLDER = "C:\\controls"
PAINTED = 20  # colours that no page without its pictures has


class Controls:
    """The program, started and in front."""

    def __init__(self, stage):
        self._stage = stage
        self._journal = stage.prefix.path(FOLDER + "\\controls-journal.txt")
        self._read = 0
        stage.prefix.put([paths.built(stage.bits, "controls.exe")], FOLDER)
        self.process = stage.witness.run(FOLDER + "\\controls.exe")
        if not poll(lambda: ("ready", "") in self._lines(), 60):
            raise RuntimeError("the program with the controls does not start")
        self._read = len(self._lines())

    def _lines(self):
        if not self._journal.exists():
            return []
        text = self._journal.read_text(encoding="cp1252")
        # The last piece is not whole yet.
        return [tuple(line.split("\t", 1)) for line in text.split("\n")[:-1]]

    def told(self, event, detail):
        """Waits until an event is told, behind the one that was waited for last."""
        def find():
            lines = self._lines()
            return (event, detail) in lines[self._read:] and lines.index((event, detail), self._read) + 1
        found = poll(find)
        self._read = found or self._read
        return bool(found)

    def rest(self):
        """What is told and has not been waited for."""
        return self._lines()[self._read:]

    def form(self, title="Controls"):
        found = self._stage.look().top(title, "KestrelForm")
        return found[0] if found else None

    def control(self, caption, class_name=None):
        """A control by its caption without the mark of the mnemonic."""
        for window in self.form().inside():
            if window.text.replace("&", "") == caption and class_name in (None, window.class_name):
                return window
        raise LookupError(caption)

    def of_class(self, class_name):
        """Visible controls of a class, from the top of the form."""
        found = [window for window in self.form().inside() if window.class_name == class_name and window.visible]
        return sorted(found, key=lambda window: (window.place.top, window.place.left))

    def focused(self, window):
        return poll(lambda: self._stage.look().focus == window.handle)


def fields(checks, stage, controls):
    plain, number, five = controls.of_class("Edit")
    checks.that(controls.focused(five), "the field with the lowest number in the tab order has the focus first")
    stage.screen.type("1234567")
    checks.that(controls.told("field 2 change", "12345 5+0"), "a field takes as many characters as it may")
    stage.screen.key("Tab")
    checks.that(controls.told("field 2 key up", "9 0"), "the Tab key goes up in the field that it leaves")
    checks.that(controls.focused(number), "the Tab key follows the numbers")
    stage.screen.type("2,5")
    checks.that(controls.told("field 1 change", "2.5 3+0"), "a comma comes in as a dot, over what was selected")
    stage.screen.key("alt+p")
    checks.that(controls.focused(plain), "a label's mnemonic leads to the field behind it")
    stage.screen.type("abc")
    stage.screen.key("ctrl+a")
    stage.screen.type("d")
    checks.that(controls.told("field 0 change", "d 1+0"), "Ctrl+A selects all")
    stage.screen.click(*number.place.middle)
    checks.that(controls.told("field 1 mouse down", "1 3+0"), "a click sets the caret before its event is raised")
    stage.screen.type("7")
    checks.that(controls.told("field 1 change", "7 1+0"), "what the event of a click selects stays selected")
    stage.screen.click(*plain.place.middle)
    checks.that(controls.focused(plain), "a click takes the focus")
    stage.screen.click(*number.place.middle, button=3)
    checks.that(controls.told("field 1 mouse down", "2 1+0"), "the right button raises its event")
    checks.that(poll(lambda: stage.look().top(class_name="#32768")), "the right button opens the field's menu")
    stage.picture("field-menu")
    stage.screen.key("Escape")
    checks.that(poll(lambda: not stage.look().top(class_name="#32768")), "Esc closes it")
    stage.screen.type("8")
    checks.that(controls.told("field 1 change", "8 1+0"), "the right button's event selects too")


def choices(checks, stage, controls):
    stage.screen.key("alt+l")
    checks.that(controls.told("size", "1"), "an option button's mnemonic chooses it")
    stage.screen.key("shift+Tab")
    checks.that(controls.focused(controls.of_class("Edit")[0]), "a group is one stop of the Tab key")
    stage.screen.key("Tab")
    checks.that(controls.focused(controls.control("Large")), "that is the button that is on")
    stage.screen.key("Down", "Down", "Up")
    checks.that(controls.told("size", "2") and controls.told("size", "0") and controls.told("size", "2"),
                "arrow keys choose, round about")
    stage.screen.key("Tab", "space")
    checks.that(controls.told("part 0", "1"), "a check box takes the blank")
    checks.that(not controls.control("Schematic, always").enabled, "a disabled check box is a disabled window")
    stage.screen.click(*controls.control("Large").place.middle)
    checks.that(controls.told("size", "1"), "a click chooses")
    lock = controls.control("Lock sizes")
    stage.screen.click(*lock.place.middle)
    checks.that(poll(lambda: not controls.control("Huge").enabled), "a frame and what stands in it can be disabled")
    checks.equal([word for word in controls.rest() if word[0] == "size"], [], "what is disabled raises nothing")


def tool_tip(checks, stage, controls):
    stage.screen.point(*controls.control("Number:").place.middle)
    checks.that(poll(lambda: stage.look().top(class_name="tooltips_class32")), "a tool tip shows over a label")
    stage.picture("fields")
    stage.screen.point(*controls.form().place.middle)
    checks.that(poll(lambda: not stage.look().top(class_name="tooltips_class32")), "it goes when the mouse goes")


def lists(checks, stage, controls):
    stage.screen.key("ctrl+Tab")
    checks.that(controls.told("page", "1"), "Ctrl+Tab turns the page")
    rows = controls.of_class("ListBox")[0]
    checks.that(controls.focused(rows), "the focus goes along to the page's first control")
    stage.screen.key("alt+f")
    checks.that(controls.told("filled", "5000") and controls.told("row", "2500"), "a long list is filled")
    checks.that(poll(lambda: stage.screen.colours(rows.client) > 2), "it is painted")
    stage.screen.click(rows.place.middle[0], rows.client.top + 5)
    checks.that(poll(lambda: any(event == "row" for event, _ in controls.rest())), "a click selects a row")
    stage.screen.key("End")
    checks.that(controls.told("row", "4999"), "keys select a row")
    checks.that(poll(lambda: any(window.text == "Row: Row number 4999" for window in controls.form().inside())),
                "a label follows")
    units = controls.of_class("ComboBox")[0]
    checks.that(units.place.height < 40, "a closed drop-down list is as high as a field", units.place)
    stage.screen.click(*units.place.middle)
    checks.that(poll(lambda: stage.look().top(class_name="ComboLBox")), "a drop-down list opens")
    stage.picture("lists")
    stage.screen.key("Up", "Return")
    checks.that(controls.told("unit", "um"), "keys choose from it")
    checks.that(poll(lambda: not stage.look().top(class_name="ComboLBox")), "Enter closes it and presses no button")
    checks.equal([word for word in controls.rest() if word[0] == "ok"], [], "the default button was not pressed")


def looks(checks, stage, controls):
    strip = controls.of_class("SysTabControl32")[0]
    stage.screen.key("ctrl+Tab")
    checks.that(controls.told("page", "2"), "Ctrl+Tab turns the page again")
    checks.that(poll(lambda: stage.screen.colours(strip.client) > PAINTED), "pictures and text are painted")
    picture, drawn = [window for window in controls.of_class("Static") if window.text == ""
                      and window.client.height in (60, 40)]
    stage.screen.click(*picture.place.middle)
    checks.that(controls.told("image", "clicked"), "an image hears a click")
    side = [window for window in controls.of_class("Static") if window.text == "Side"][0]
    stage.screen.click(*side.place.middle)
    checks.that(controls.told("label", "clicked"), "a label hears a click")
    checks.that(stage.screen.colours(drawn.client) == 2, "the picture box shows its picture")
    stage.screen.click(*controls.control("Up").place.middle)
    checks.that(controls.told("up", "clicked"), "a button with a picture is pressed")
    checks.that(poll(lambda: stage.screen.colours(drawn.client) == 1), "the picture box follows")
    stage.picture("looks")


def modal(checks, stage, controls):
    stage.screen.click(*controls.control("Name...").place.middle)
    asked = poll(lambda: controls.form("Name"))
    if not checks.that(asked, "a modal form opens"):
        return
    checks.that(not controls.form().enabled, "the form behind it is held")
    stage.wait_for_focus(asked.handle)
    stage.screen.type("Max")
    stage.picture("modal")
    stage.screen.key("Return")
    checks.that(controls.told("name", "Max"), "Enter presses its default button", controls.rest())
    checks.that(controls.told("back from", "the name form"), "the call returns")
    checks.that(poll(lambda: controls.form().enabled), "the form behind it is free again")


def story(stage, checks):
    controls = Controls(stage)
    stage.wait_for_focus(controls.form().handle)
    fields(checks, stage, controls)
    choices(checks, stage, controls)
    tool_tip(checks, stage, controls)
    lists(checks, stage, controls)
    looks(checks, stage, controls)
    modal(checks, stage, controls)
    stage.wait_for_focus(controls.form().handle)
    stage.screen.key("alt+k")
    checks.that(controls.told("ok", "pressed"), "a mnemonic presses a button")
    stage.screen.key("Escape")
    checks.that(controls.told("form", "closes"), "Esc presses the cancel button")
    checks.equal(stage.witness.exit_code(controls.process), 0, "the program ends")


if __name__ == "__main__":
    play(__file__, story)
