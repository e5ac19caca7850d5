"""Systems with another code page, 932 and UTF-8: buttons with letters of several bytes, in a folder with letters that 932
lacks, and such letters typed into the setup."""

from play import play_on_each
from programFolder import FOREIGN, lay_out, leave, works

from driver import settings
from driver.settings import button
from driver.setup import Setup
from driver.waiting import poll

ICON = "{kestrelpath}\\samples\\icons.dll,0"
# In 932 their second bytes are those of a backslash, a bar and braces, and the section sign's byte is one of theirs.
LETTERS = "\u8868\u30dd\u30dc\u30de\u7acb"
COMMAND = f"text {LETTERS}"
TYPED = "\u0436\u042b\u042f"  # on a Russian keyboard; in 932 two bytes each, the second of the middle one a backslash's
BUTTONS = [button(LETTERS, COMMAND, tooltip=LETTERS, icon=ICON),
           button("Copy", "{kestrelpath}\\helper.exe", settings.PROGRAM, tooltip="Helper", icon="{kestrelpath}\\brd.ico,0")]
TEXT = settings.made({"autoToolbar": 0}, board=BUTTONS)


def types(stage, checks, board, ini, page, encoding):
    """Letters beyond ASCII are typed into the setup, character by character, and are what it saves."""
    setup = Setup(stage)
    if not checks.that(setup.open(board), f"{page}: the setup opens"):
        return
    setup.select(0)
    checks.that(setup.shows(LETTERS, COMMAND, LETTERS), f"{page}: it shows the letters of the settings", setup.texts())
    for number, name in enumerate(("title", "command", "tip")):
        stage.screen.click(*setup.fields()[number].place.middle)
        stage.screen.key("ctrl+a")
        stage.screen.layout("ru")
        stage.screen.type(TYPED)
        checks.that(poll(lambda number=number: setup.texts()[number] == TYPED), f"{page}: letters are typed into the {name}",
                    setup.texts())
        stage.screen.layout("us")
    stage.screen.key("BackSpace")
    checks.that(setup.shows(TYPED, TYPED, TYPED[:-1]), f"{page}: Backspace takes a character, whatever its bytes", setup.texts())
    stage.picture(f"typed-{page}")
    setup.press("Ok")
    setup.gone()
    written = settings.rows(ini.read_bytes().decode(encoding), "board")
    checks.equal([written[0][key] for key in ("name", "path", "tooltip")], [TYPED, TYPED, TYPED[:-1]],
                 f"{page}: OK writes them in the code page")
    before = len(board.executed())
    stage.click_button(board, 0)
    poll(lambda: len(board.executed()) > before)
    checks.equal(board.executed()[before:], [TYPED], f"{page}: the button types them into EAGLE")


def story_in(page, encoding):
    def story(stage, checks):
        eagle = stage.start_eagle()
        file = f"C:\\work\\{LETTERS}.brd"
        board = eagle.open("board", file)
        board.place(0, 20, 1590, 560)
        ini = lay_out(stage, FOREIGN, TEXT, encoding)
        kestrel = works(stage, checks, board, FOREIGN, page, COMMAND)
        found = poll(lambda: settings.value(ini.read_bytes().decode(encoding), "toolbar", "lastboard"))
        checks.equal(found, file, f"{page}: settings are saved in the code page")
        types(stage, checks, board, ini, page, encoding)
        leave(stage, kestrel)
    return story


if __name__ == "__main__":
    play_on_each(__file__, {"page-932": (story_in("932", "cp932"), {"locale": "ja_JP"}),
                            "page-65001": (story_in("65001", "utf-8"), {"locale": "hi_IN"})})
