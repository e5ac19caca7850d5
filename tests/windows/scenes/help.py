"""The help: the tray's menu and the button in the setup open the help window on the start topic of the current language,
with a filled contents tree. The page itself is not seen here, since Wine shows a blank pane; which topic it was led to,
it says in its channel."""

import re

from play import play

from driver import paths, settings
from driver.tray import Tray
from driver.waiting import poll, stays

TITLE = "EAGLE Kestrel Bench"
LANGUAGES = {"de": (0, "Konfiguration", "&Hilfe"), "en": (10000, "Configuration", "&Help")}
TOPICS = (paths.PROJECT / "resources" / "help" / "contents.txt").read_text(encoding="utf-8").split()


def help_window(stage):
    """The viewer's window; Kestrel's toolbars bear the same title, but stand in other windows."""
    found = [window for window in stage.look().top(TITLE) if window.class_name == "HH Parent"]
    return found[0] if found else None


def guests(stage):
    """Toolbars of Kestrel's in the help window."""
    return [child for child in help_window(stage).inside() if child.class_name == "KestrelForm"]


def led_to(stage):
    """The topics that the context numbers have led to so far."""
    return re.findall(r'FindContextAlias returning "([^"]*)"', stage.prefix.heard.read_text(errors="replace"))


def shows_start(stage, checks, language, click, words):
    """What is clicked opens the help on the right topic."""
    before = len(led_to(stage))
    click()
    window = checks.that(poll(lambda: help_window(stage)), f"{language}: {words} opens the help window")
    poll(lambda: len(led_to(stage)) > before)
    checks.equal(led_to(stage)[before:], [f"{language}/index.html"], f"{language}: it shows the start topic of the language")
    return window


def by_tray(stage, checks, language):
    shows_start(stage, checks, language, lambda: Tray(stage).choose("help"), "the tray's menu")


def by_setup(stage, checks, board, language):
    _, setup, button = LANGUAGES[language]
    stage.click_button(board, 1)
    dialog = poll(lambda: stage.look().top(setup))
    if not checks.that(dialog, f"{language}: its last button opens the setup"):
        return
    place = next(child.place for child in dialog[0].inside() if child.text == button)
    if shows_start(stage, checks, language, lambda: stage.screen.click(*place.middle), "the setup's button"):
        books = len(LANGUAGES) * (1 + len(TOPICS))
        trees = poll(lambda: [child for child in help_window(stage).inside() if child.items == books])
        checks.that(trees, f"{language}: the contents tree holds all {books} entries")
        checks.that(stays(lambda: not guests(stage), 1), f"{language}: it is not taken for a window of EAGLE's", guests(stage))


def closings(stage):
    """How often the viewer has been told to close all of its windows."""
    close_all = re.compile(r"HtmlHelp[AW].*\b(command=HH_CLOSE_ALL|0x12|18)\b")
    return len(close_all.findall(stage.prefix.heard.read_text(errors="replace")))


def ends(stage, checks, kestrel, language):
    """The help is closed before the end: its window is one of the same process."""
    before = closings(stage)
    stage.screen.key("Escape")  # the setup
    checks.that(poll(lambda: not stage.look().top(LANGUAGES[language][1])), f"{language}: the setup closes")
    Tray(stage).choose("exit")
    checks.equal(stage.witness.exit_code(kestrel), 0, f"{language}: Exit ends Kestrel with the help open")
    checks.equal(closings(stage) - before, 1, f"{language}: the help was told to close before")


def story(stage, checks):
    eagle = stage.start_eagle()
    for number, language in enumerate(LANGUAGES):
        board = eagle.open("board", f"C:\\work\\demo{number}.brd")
        board.place(1010, 100, 560, 400)  # beside the help window, which stands further to the left
        text = f"[global]\nlanguage={LANGUAGES[language][0]}\n" + settings.made(board=[settings.button("Fit", "window fit")])
        kestrel = stage.start_kestrel(text)
        checks.that(stage.toolbar(board), f"{language}: a toolbar appears")
        by_tray(stage, checks, language)
        by_setup(stage, checks, board, language)
        stage.picture(f"help-{language}")
        ends(stage, checks, kestrel, language)
        board.close()


if __name__ == "__main__":
    play(__file__, story, channel="htmlhelp")
