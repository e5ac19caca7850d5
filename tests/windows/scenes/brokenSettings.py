"""Hand-broken settings: the runtime's own message and the end, or toolbars as far as they can be had; never a crash."""

from play import play

from driver import settings
from driver.desktop import Rect
from driver.settings import button
from driver.stage import PLAIN
from driver.waiting import poll

# What is wrong, the settings, the number and the text of the message.
BROKEN = (
    ("a dialog that is no number", settings.made(board=[button("A", "a", dialog="ask")]), 13, "Type mismatch"),
    ("a missing type", settings.made(library=[button("A", "a", "")]), 13, "Type mismatch"),
    ("a type beyond 16 bits", settings.made(schematic=[button("A", "a", 40000)]), 6, "Overflow"),
    ("a language beyond 32 bits", "[global]\nlanguage=1e99\n", 6, "Overflow"),
    ("an icon without a comma", settings.made(board=[button("A", "a", icon="C:\\windows\\notepad.exe")]), 9,
     "Subscript out of range"),
    ("an icon index that is no number", settings.made(board=[button("A", "a", icon="x.ico,first")]), 13,
     "Type mismatch"),
)

NO_ICONS = "icons that are not there"

# What is odd, the settings, the number of buttons in the board's toolbar.
ODD = (
    ("no file's worth of settings", "", 1),
    ("a gap in the numbering", settings.made(board=[button("A", "a"), button("", ""), button("C", "c")]), 2),
    ("binary bytes",
     bytes(range(1, 256)) * 8 + b"\r\n[board]\r\n1name=\x01\xff\xfe\r\n1path=\x80\x81\r\n1dialog=0\r\n1type=1\r\n", 2),
    ("values of 60000 characters", settings.made(board=[button("A" * 60000, "p" * 60000, tooltip="t" * 60000)]), 2),
    (NO_ICONS, settings.made(board=[button("A", "a", icon="C:\\no.ico,0"),
                                    button("B", "b", icon="C:\\windows,999999")]), 3),
    ("unknown kinds of dialog and type", settings.made(board=[button("A", "a", 7, 9)]), 2),
)


def message(stage):
    found = stage.look().top(class_name="#32770")
    return found[0] if found else None


def blank(stage, toolbar):
    """Whether all buttons but "Config" are of one colour, that of the toolbar around them."""
    *rows, config = (button.place for button in toolbar.buttons)
    rest = Rect(config.right + 5, config.top, toolbar.form.client.right - 1, config.bottom)
    colours = stage.screen.colours_of([*rows, config, rest, Rect(rows[0].left, rows[0].top, rest.right, rest.bottom)])
    pictured = colours[len(rows)]
    return pictured > PLAIN and colours == [*(1 for _ in rows), pictured, 1, pictured]


def story(stage, checks):
    board = stage.start_eagle().open("board", "C:\\work\\demo.brd")
    for words, text, number, description in BROKEN:
        kestrel = stage.start_kestrel(text)
        box = poll(lambda: message(stage))
        if not checks.that(box, f"{words}: a message appears"):
            stage.witness.order("terminate", kestrel)
            continue
        shown = " ".join(inner.text for inner in box.inside())
        expected = f"Run-time error '{number}':\n\n{description}"
        checks.that(expected in shown.replace("\r", ""), f"{words}: it says error {number}", shown)
        if number == 13:
            stage.picture("message")
        checks.that(stage.wait_for_focus(box.handle), f"{words}: it is in front")
        stage.screen.key("Return")
        checks.equal(stage.witness.exit_code(kestrel), 0, f"{words}: then the program ends")
    for words, text, count in ODD:
        kestrel = stage.start_kestrel(text)
        toolbar = stage.toolbar(board)
        if checks.that(toolbar, f"{words}: the toolbar appears"):
            checks.equal(len(toolbar.buttons), count, f"{words}: it has {count} buttons with \"Config\"")
        if words == NO_ICONS and toolbar:
            checks.that(poll(lambda: blank(stage, stage.toolbar(board))), f"{words}: their buttons are blank")
            stage.picture("blank", toolbar.form.place)
        checks.that(stage.witness.runs(kestrel) and not message(stage), f"{words}: no message, no end")
        stage.witness.order("terminate", kestrel)
        stage.witness.exit_code(kestrel)
        checks.that(poll(lambda: not stage.toolbars(board)), f"{words}: it goes with the program")


if __name__ == "__main__":
    play(__file__, story)
