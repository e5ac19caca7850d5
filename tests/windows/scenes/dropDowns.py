"""The setup's drop-down lists, opened and closed in every way by mouse and keyboard: what they show is what OK stores."""

from play import play

from driver import settings
from driver.setup import ROW, Setup
from driver.waiting import poll

# In the order of the lists on the page.
KEYS = ("LeftUnit", "RightUnit", "LeftAccuracy", "RightAccuracy")
LANGUAGE = 4


class List:
    """One of the setup's drop-down lists."""

    def __init__(self, stage, setup, number):
        self._stage, self._setup, self._number = stage, setup, number

    def window(self):
        return self._setup.lists()[self._number]

    def opened(self):
        """The list that has dropped down; None if none has."""
        found = self._stage.look().top(class_name="ComboLBox")
        return found[0] if found else None

    def open(self, way):
        if way == "click":
            self._stage.screen.click(*self.window().place.middle)
        else:
            self.focus()
            self._stage.screen.key(way)
        return poll(self.opened)

    def focus(self):
        """By the keyboard alone, since a click opens it."""
        for _ in range(40):
            if self._stage.look().focus == self.window().handle:
                return
            before = self._stage.look().focus
            self._stage.screen.key("Tab")
            poll(lambda before=before: self._stage.look().focus != before)
        raise LookupError("the Tab key does not come to the list")

    def row(self, number):
        """Middle of a row of the open list, on the screen."""
        place = self.opened().client
        return place.left + 20, place.top + ROW * number + ROW // 2


def keys(*names):
    return lambda stage, _: stage.screen.key(*names)


def click_elsewhere(stage, dropped):
    """On the edge of the setup, where nothing is."""
    form = stage.look().windows[dropped.window().parent]
    while form.class_name != "KestrelForm":
        form = stage.look().windows[form.parent]
    stage.screen.click(form.client.left + 3, form.client.bottom - 3)


def click_row(stage, dropped):
    stage.screen.click(*dropped.row(1))


OPENINGS = ("click", "F4", "alt+Down")
# What closes the list, how, and whether it takes a row. Under Wine a letter closes it too.
# Under Wine no fault of the program is seen by a click elsewhere: the system's list has its row from before again when it
# tells that it closes, and before. On Windows it may have another one, which the contract tests of drop-down lists play.
CLOSINGS = (("Enter", keys("Return"), True), ("F4", keys("F4"), True), ("Alt+Up", keys("alt+Up"), True),
            ("Tab", keys("Tab"), True), ("a click on a row", click_row, True), ("a letter", keys("m"), True),
            ("Esc", keys("Escape"), False), ("a click elsewhere", click_elsewhere, False))


def close(stage, checks, dropped, opening, closing):
    """Opens the list, moves in it by key and mouse, closes it. Gives the text that it shows then."""
    name, way, takes = closing
    words = f"{opening}, {name}"
    before = dropped.window().text
    if not checks.that(dropped.open(opening), f"{words}: the list opens"):
        return before
    stage.screen.key("Down")
    # To another row than that from before, which is the first: those that were taken were pointed at there.
    stage.screen.point(*dropped.row(0 if takes else 1))
    if name == "Enter" and opening == "click":
        stage.picture("open-list")
    way(stage, dropped)
    checks.that(poll(lambda: dropped.opened() is None), f"{words}: it closes")
    if not takes:
        checks.that(poll(lambda: dropped.window().text == before), f"{words}: it shows the row from before",
                    dropped.window().text)
    return dropped.window().text


def ok(stage, checks, setup, shown):
    """What the lists show, by number, is what OK stores."""
    now = [window.text for window in setup.lists()]
    checks.equal([now[number] for number in shown], list(shown.values()), "what has been shown stays")
    stage.screen.key("alt+o")
    checks.that(setup.gone(), "OK closes the setup")
    stored = stage.settings()
    checks.equal([settings.value(stored, "Unit", KEYS[number].lower()) for number in shown], list(shown.values()),
                 "what was shown is stored")


def units(stage, checks, setup, editor):
    for opening in OPENINGS:
        for first in range(0, len(CLOSINGS), len(KEYS)):
            setup.open(editor)
            setup.turn_to(0)
            shown = {}
            for number, closing in enumerate(CLOSINGS[first:first + len(KEYS)]):
                shown[number] = close(stage, checks, List(stage, setup, number), opening, closing)
            ok(stage, checks, setup, shown)


def wheel(stage, checks, setup, editor):
    """Over an open list, which is left by Enter and by Esc, and over a closed one that has the keyboard."""
    setup.open(editor)
    setup.turn_to(0)
    shown = {}
    for number, (name, way, takes) in enumerate((CLOSINGS[0], CLOSINGS[6])):
        dropped = List(stage, setup, number)
        dropped.focus()
        stage.screen.key("Home")
        before = dropped.window().text
        checks.that(dropped.open("alt+Down"), f"wheel, {name}: the list opens")
        stage.screen.wheel_down(*dropped.row(1), 2)
        way(stage, dropped)
        checks.that(poll(lambda dropped=dropped: dropped.opened() is None), f"wheel, {name}: it closes")
        if not takes:
            checks.that(poll(lambda dropped=dropped, before=before: dropped.window().text == before),
                        f"wheel, {name}: it shows the row from before", dropped.window().text)
        shown[number] = dropped.window().text
    closed = List(stage, setup, len(shown))
    closed.focus()
    stage.screen.key("Home")
    before = closed.window().text
    stage.screen.wheel_down(*closed.window().place.middle, 1)
    checks.that(poll(lambda: closed.window().text != before), "the wheel moves on in a closed list with the keyboard")
    shown[len(shown)] = closed.window().text
    ok(stage, checks, setup, shown)


def mark(stage, checks, setup, editor):
    """A picture of the mark that has left OK for the button that has the keyboard."""
    setup.open(editor)
    setup.turn_to(0)
    for _ in range(40):
        if stage.look().focus == setup.button("Cancel").handle:
            break
        before = stage.look().focus
        stage.screen.key("Tab")
        poll(lambda before=before: stage.look().focus != before)
    checks.equal(stage.look().focus, setup.button("Cancel").handle, "the Tab key leads to Cancel")
    stage.screen.still(setup.form().place)
    stage.picture("moved-mark", setup.form().place)
    stage.screen.key("Return")
    checks.that(setup.gone(), "Enter presses Cancel there")


def language(stage, checks, setup, editor):
    """The language follows at once, but not what is only highlighted."""
    for opening in OPENINGS:
        setup.open(editor)
        setup.turn_to(0)
        close(stage, checks, List(stage, setup, LANGUAGE), opening, CLOSINGS[6])
        checks.that(setup.form("Configuration"), f"{opening}, Esc: the dialog stays English")
        checks.equal(settings.value(stage.settings(), "global", "language"), "10000", f"{opening}, Esc: the file too")
        stage.screen.key("Escape")
        setup.gone()


def story(stage, checks):
    editor = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    editor.place(0, 0, 640, 440)
    stage.start_kestrel("[global]\nlanguage=10000\n[Unit]\nLeftUnit=mm\nRightUnit=mil\nLeftAccuracy=0.##\nRightAccuracy=0.##\n")
    setup = Setup(stage)
    checks.that(stage.toolbar(editor), "Kestrel is there")
    mark(stage, checks, setup, editor)
    units(stage, checks, setup, editor)
    wheel(stage, checks, setup, editor)
    language(stage, checks, setup, editor)


if __name__ == "__main__":
    play(__file__, story)
