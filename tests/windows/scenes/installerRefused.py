"""The installer meets a Kestrel that runs as administrator: it says why it cannot close it, and changes nothing."""

import subprocess

from play import play

from driver import paths, settings
from driver.waiting import poll

SETUP = "C:\\packages\\refused.exe"
CANCELLED_BY_RUNNING = 3  # the installer's exit code


def make_setup(stage):
    """Wine refuses no window anything: the installer's one call is replaced by another that is refused."""
    target = stage.prefix.path(SETUP)
    target.parent.mkdir()
    subprocess.run(["makensis", "-V2", "-INPUTCHARSET", "UTF8", f"-DTARGET={target}",
                    f"-DPACKAGING={paths.PROJECT / 'packaging'}",
                    paths.PROJECT / "tests" / "windows" / "installer" / "refused.nsi"], check=True, stdout=subprocess.DEVNULL)


def told(stage):
    """The text of the installer's message; None while there is none."""
    for window in stage.look().top("Kestrel", "#32770"):
        for child in window.inside():
            if "administrator" in child.text:
                return window
    return None


def click(stage, window, caption):
    place = next(child.place for child in window.inside() if child.text.replace("&", "") == caption)
    stage.screen.click(*place.middle)


def story(stage, checks):
    make_setup(stage)
    kestrel = stage.start_kestrel(settings.made({"autoToolbar": 0}))
    poll(lambda: any(window.text == "Kestrel Strip for EAGLE" for window in stage.look().windows.values()))
    setup = stage.witness.run(SETUP)
    message = poll(lambda: told(stage), 8)
    if not checks.that(message, "it says that Kestrel runs as administrator, without waiting ten seconds"):
        return
    stage.picture("told")
    click(stage, message, "Retry")
    checks.that(poll(lambda: told(stage) and told(stage).handle != message.handle), "Retry asks again")
    click(stage, told(stage), "Cancel")
    checks.equal(stage.witness.exit_code(setup), CANCELLED_BY_RUNNING, "Cancel ends it, and its exit code says so")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")
    silent = stage.witness.run(SETUP + " /S")
    checks.equal(stage.witness.exit_code(silent, 8), CANCELLED_BY_RUNNING, "a silent one gives up at once")


if __name__ == "__main__":
    play(__file__, story)
