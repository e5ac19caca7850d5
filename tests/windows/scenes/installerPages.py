"""The installer as a user sees it, on a German Windows: its pages, a folder that cannot be, the start of the program at the
end, the removal with its question about the settings."""

from play import play

from driver.installation import DEFAULT, SETUP, Installation
from driver.tray import Tray
from driver.waiting import poll

PAGES = {"welcome": "Willkommen", "licence": "Lizenzabkommen", "folder": "Zielverzeichnis", "parts": "Komponenten",
         "last": "wird abgeschlossen"}
REMOVAL = {"first": "Deinstallation von Kestrel", "last": "Deinstallation wurde erfolgreich abgeschlossen"}


def dialog(stage, text):
    """The dialog that shows this text; None as long as there is none."""
    for window in stage.look().top(class_name="#32770"):
        if any(child.visible and text in child.text for child in window.inside()):
            return window
    return None


def page(stage, checks, name):
    """Waits for a page of the installer, which then has the keyboard."""
    seen = poll(lambda: dialog(stage, PAGES[name]))
    if checks.that(seen, f"the page \"{PAGES[name]}\" shows"):
        stage.wait_for_focus(seen.handle)
        stage.picture(name, seen.place)
    return seen


def press(stage, window, text):
    """Clicks a button of a dialog."""
    button = next(child for child in window.inside() if child.text.replace("&", "") == text)
    stage.screen.click(*button.place.middle)


def closed_folder(stage, checks, setup):
    # Where a folder has the name of the file that is written for a try, the try fails as it does without leave to write.
    stage.prefix.path("C:\\closed\\kestrel-setup.tmp").mkdir(parents=True)
    checks.equal(setup.install(" /D=C:\\closed"), 5, "a silent installation into a folder that cannot be written to fails")
    stage.witness.run(f"{SETUP} /D=C:\\closed")
    for name in ("welcome", "licence", "folder"):
        page(stage, checks, name)
        stage.screen.key("Return")
    message = poll(lambda: dialog(stage, "nicht schreiben"))
    if checks.that(message, "a folder that cannot be written to is refused with a message"):
        stage.wait_for_focus(message.handle)
        stage.picture("refused", message.place)
        stage.screen.key("Return")
    window = page(stage, checks, "folder")
    press(stage, window, "Abbrechen")
    sure = poll(lambda: dialog(stage, "Sind Sie sicher"))
    stage.wait_for_focus(sure.handle)
    press(stage, sure, "Ja")
    checks.that(poll(lambda: not stage.look().running("setup.exe")), "it can be cancelled")
    checks.equal(setup.registered("Uninstall\\Kestrel"), {}, "nothing is installed then")
    checks.equal(setup.standing("C:\\closed"), {}, "and no file left")


def installation(stage, checks, setup):
    process = stage.witness.run(SETUP)
    for name in ("welcome", "licence"):
        page(stage, checks, name)
        stage.screen.key("Return")
    page(stage, checks, "folder")
    # The page's text stands a moment before its field does.
    checks.that(poll(lambda: any(child.text == DEFAULT for child in dialog(stage, PAGES["folder"]).inside())),
                "the folder is the user's own")
    stage.screen.key("Return")
    page(stage, checks, "parts")
    stage.screen.key("Return")
    page(stage, checks, "last")
    stage.screen.key("Return")
    checks.equal(stage.witness.exit_code(process), 0, "it ends well")
    checks.equal(setup.standing()["kestrel.ini"], setup.files["samples/Deutsch/kestrel.ini"], "the buttons are in German")
    checks.that(poll(Tray(stage).icon), "at the end it starts the program")


def removal(stage, checks, setup, answer):
    """Gives the names of what is left."""
    stage.witness.run(setup.registered("Uninstall\\Kestrel")["UninstallString"])
    window = poll(lambda: dialog(stage, REMOVAL["first"]))
    stage.wait_for_focus(window.handle)
    stage.picture("removal", window.place)
    press(stage, window, "Deinstallieren")
    question = poll(lambda: dialog(stage, "kestrel.ini"))
    if checks.that(question, "the removal asks about the settings"):
        stage.wait_for_focus(question.handle)
        stage.picture("question", question.place)
        checks.that(setup.standing().get("kestrel.exe"), "while all is still there")
        answer(question)
    poll(lambda: not setup.registered("Uninstall\\Kestrel"))
    checks.that(Tray(stage).gone(), "the program has ended")
    window = poll(lambda: dialog(stage, REMOVAL["last"]))
    stage.wait_for_focus(window.handle)
    stage.screen.key("Return")
    poll(lambda: not stage.look().top(class_name="#32770"))
    return sorted(setup.standing())


def story(stage, checks):
    setup = Installation(stage)
    closed_folder(stage, checks, setup)
    installation(stage, checks, setup)
    left = removal(stage, checks, setup, lambda _: stage.screen.key("Return"))
    checks.equal(left, ["kestrel.ini"], "Enter keeps the settings")
    checks.equal(setup.install(), 0, "installed once more")
    left = removal(stage, checks, setup, lambda question: press(stage, question, "Ja"))
    checks.equal(left, [], "Yes removes the settings as well")
    checks.that(not stage.prefix.path(DEFAULT).exists(), "the folder has gone")


if __name__ == "__main__":
    play(__file__, story, locale="de_DE")
