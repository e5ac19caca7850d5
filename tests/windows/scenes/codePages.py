"""Systems with another code page, 932 and UTF-8: buttons with letters of several bytes, in a folder with letters that 932 lacks."""

from play import play_on_each
from programFolder import FOREIGN, lay_out, leave, works

from driver import settings
from driver.settings import button
from driver.waiting import poll

ICON = "{kestrelpath}\\samples\\icons.dll,0"
# In 932 their second bytes are those of a backslash, a bar and braces, and the section sign's byte is one of theirs.
LETTERS = "\u8868\u30dd\u30dc\u30de\u7acb"
COMMAND = f"text {LETTERS}"
BUTTONS = [button(LETTERS, COMMAND, tooltip=LETTERS, icon=ICON),
           button("Copy", "{kestrelpath}\\helper.exe", settings.PROGRAM, tooltip="Helper", icon="{kestrelpath}\\brd.ico,0")]
TEXT = settings.made({"autoToolbar": 0}, board=BUTTONS)


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
        leave(stage, kestrel)
    return story


if __name__ == "__main__":
    play_on_each(__file__, {"page-932": (story_in("932", "cp932"), {"locale": "ja_JP"}),
                            "page-65001": (story_in("65001", "utf-8"), {"locale": "hi_IN"})})
