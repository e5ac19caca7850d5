"""The tray: the icon, its menu by either button and in both languages, what each entry does, the splash."""

from play import play

from driver import settings
from driver.tray import LEFT, RIGHT, Tray
from driver.waiting import poll, stays

SPLASH = 2  # seconds
TASKBAR_CREATED = "@TaskbarCreated"
SPLASH_SIZE = (6030 // 15 + 2, 2865 // 15 + 2)  # pixels, with a thin border


def splash(stage):
    """The splash on the screen: the form without a title that is not a calculator's."""
    found = [form for form in stage.look().top(class_name="KestrelForm")
             if form.text == "" and (form.place.width, form.place.height) == SPLASH_SIZE]
    return found[0] if found else None


def start(stage, checks, tray):
    kestrel = stage.start_kestrel(settings.made({"autoToolbar": 0, "EAGLEpath": "C:\\eagle\\eagle.exe"}))
    seen = poll(lambda: splash(stage))
    if checks.that(seen, "the splash comes up at the start"):
        stage.picture("splash", seen.place)
        checks.equal((seen.place.left + seen.place.right) // 2, 800, "the splash stands in the middle of the screen")
        checks.that(tray.icon() is None, "no icon stands in the tray as long as the splash is up")
    checks.that(poll(lambda: splash(stage) is None), "the splash goes by itself")
    checks.that(poll(tray.icon), "the icon stands in the tray")
    return kestrel


def opens_and_closes(stage, checks, tray):
    for button, name in ((LEFT, "left"), (RIGHT, "right")):
        menu = tray.open(button)
        if checks.that(menu, f"the {name} button opens the menu"):
            stage.picture(f"menu-{name}", menu.place)
            checks.equal(len(stage.look().top(class_name="#32768")), 1, "one menu")
            stage.screen.click(300, 900)
            checks.that(poll(lambda: tray.menu() is None), "a click elsewhere closes it")
    stage.screen.press(*tray.resting().place.middle, RIGHT)
    checks.that(stays(lambda: tray.menu() is None, 0.5), "the press of the button opens nothing")
    stage.screen.release(RIGHT)
    checks.that(poll(tray.menu), "its release does")
    stage.screen.click(300, 900)
    poll(lambda: tray.menu() is None)


def info(stage, checks, tray):
    checks.that(tray.choose("info"), "Info can be chosen")
    seen = poll(lambda: splash(stage))
    if checks.that(seen, "Info shows the splash"):
        stage.screen.click(*seen.place.middle)
        checks.that(poll(lambda: splash(stage) is None, SPLASH), "a click on it closes it")


def eagle(stage, checks, tray):
    checks.that(tray.choose("eagle"), "Open EAGLE can be chosen")
    checks.that(poll(lambda: stage.look().running("eagle.exe")), "Open EAGLE starts EAGLE")
    stage.write_settings(settings.made({"autoToolbar": 0, "EAGLEpath": "C:\\nowhere\\eagle.exe"}))
    tray.choose("eagle")
    message = poll(lambda: stage.look().top("Hinweis", "#32770"))
    if checks.that(message, "with a wrong path it says so, in German"):
        stage.wait_for_focus(message[0].handle)
        stage.picture("wrong-path", message[0].place)
        stage.screen.key("Return")
        checks.that(poll(lambda: not stage.look().top("Hinweis")), "Enter closes the message")


def configuration(stage, checks, tray):
    def setup():
        found = [form for form in stage.look().top(class_name="KestrelForm") if form.text.startswith("Konfiguration")]
        return found[0] if found else None

    checks.that(tray.choose("configuration"), "Configuration can be chosen")
    dialog = poll(setup)
    if not checks.that(dialog, "Configuration opens the setup"):
        return
    stage.wait_for_focus(dialog.handle)
    checks.that(tray.choose("configuration"), "the menu opens while the setup is up")
    checks.equal(len([form for form in stage.look().top("Konfiguration", "KestrelForm")]), 1, "there is one setup only")
    checks.that(stage.wait_for_focus(dialog.handle), "it has the keyboard again")
    stage.screen.key("Escape")
    checks.that(poll(lambda: setup() is None), "Esc closes it")


def comes_back(stage, checks, tray):
    icon = tray.icon()
    owner = tray.lose_icon()
    checks.that(tray.gone(), "the shell loses the icon")
    stage.witness.order("post", owner.handle, TASKBAR_CREATED, 0, 0)
    back = poll(tray.icon)
    checks.that(back and back.handle != icon.handle, "when the shell has started anew the icon is back")
    menu = tray.open()
    checks.that(menu, "and opens its menu")
    stage.screen.click(300, 900)
    poll(lambda: tray.menu() is None)


def leave(stage, checks, tray, kestrel):
    checks.that(tray.choose("exit"), "Exit can be chosen")
    checks.equal(stage.witness.exit_code(kestrel), 0, "Exit ends the program")
    checks.that(tray.gone(), "the icon has gone")


def english(stage, checks, tray):
    kestrel = stage.start_kestrel("[global]\nlanguage=10000\n")
    seen = poll(lambda: splash(stage))
    stage.screen.click(*seen.place.middle)
    checks.that(poll(tray.icon, SPLASH), "a click on the splash lets the start go on")
    menu = tray.open()
    stage.picture("menu-english", menu.place)
    stage.screen.click(*tray.place_of(menu, "eagle"))
    message = poll(lambda: stage.look().top("Information", "#32770"))
    checks.that(message, "in English the message is English")
    stage.wait_for_focus(message[0].handle)
    stage.screen.key("Return")
    poll(lambda: not stage.look().top("Information"))
    leave(stage, checks, tray, kestrel)


def story(stage, checks):
    stage.start_eagle().order("quit")  # leaves its program in C:\eagle
    tray = Tray(stage)
    kestrel = start(stage, checks, tray)
    opens_and_closes(stage, checks, tray)
    info(stage, checks, tray)
    eagle(stage, checks, tray)
    configuration(stage, checks, tray)
    comes_back(stage, checks, tray)
    leave(stage, checks, tray, kestrel)
    english(stage, checks, tray)


if __name__ == "__main__":
    play(__file__, story)
