"""The check that users play on a Windows of their own: what it sees, what it says, what stops it, what it leaves."""

import re
import subprocess
import sys

from play import play

from driver.checkKit import FOLDER, TEMPORARY, CheckKit
from driver.waiting import poll

SHORT = "-ts=contract/devices,contract/hosting"  # contract tests; all of them are a step of their own
TRACES = "HKCU\\Control Panel\\NotifyIconSettings"  # what Windows 11 keeps of programs that had an icon in the tray
PICTURES = [kind + end for end in ("", "-clicked") for kind in ("board", "schematic", "library")] + ["setup"]
PAINTED = 12  # colours of a picture that shows something


class OtherProgram:
    """A program of the user's with a text and a window, which the check is to leave alone."""

    def __init__(self, stage):
        self._stage = stage
        stage.prefix.path("C:\\secret plan.txt").write_text("")
        stage.witness.run("notepad.exe C:\\secret plan.txt")
        poll(self.window)
        stage.wait_for_focus(self.window().handle)

    def window(self):
        found = self._stage.look().top("secret plan")
        return found[0] if found else None

    def text(self):
        return next(child.text for child in self.window().inside() if child.class_name == "Edit")

    def copy(self, text):
        """Into the clipboard."""
        self._stage.screen.type(text)
        poll(lambda: self.text() == text)
        self._stage.screen.key("ctrl+a", "ctrl+c", "Right")

    def pasted(self):
        """What the clipboard holds, behind the text."""
        before = self.text()
        self._stage.screen.click(*self.window().client.middle)
        self._stage.wait_for_focus(self.window().handle)
        self._stage.screen.key("ctrl+End", "ctrl+v")
        poll(lambda: self.text() != before)
        return self.text()[len(before):]


def registered(stage):
    """Names of the keys below TRACES."""
    listed = "C:\\traces.txt"
    stage.witness.exit_code(stage.witness.run(f'cmd.exe /c reg.exe query "{TRACES}" > {listed}'))
    return re.findall(r"NotifyIconSettings\\(\w+)", stage.prefix.path(listed).read_text())


def remember(stage, name, program):
    stage.witness.exit_code(stage.witness.run(f'reg.exe add "{TRACES}\\{name}" /v ExecutablePath /d {program} /f'))


def please_close(program):
    """What the check says where it would disturb a program of the user's."""
    return [f"Please close {program} first: this check would disturb it.",
            f"Bitte zuerst {program} beenden: diese Prüfung würde es stören."]


def intruders(stage, checks, kit):
    """It ends at once where it would disturb the user."""
    eagle = stage.start_eagle()
    checks.equal(kit.run(), 2, "an EAGLE runs: nothing is played")
    checks.equal(kit.printed(), please_close("eagle.exe"), "it says so in one line, in both languages")
    eagle.order("quit")
    kestrel = stage.start_kestrel()
    poll(lambda: stage.look().running("kestrel.exe"))
    checks.equal(kit.run(), 2, "a Kestrel runs: nothing is played")
    checks.equal(kit.printed(), please_close("kestrel.exe"), "it says so in one line, in both languages")
    stage.witness.order("terminate", kestrel)
    stage.witness.exit_code(kestrel)
    checks.equal(kit.report(), "", "neither leaves a report")


def leaves_nothing(stage, checks, kit, why):
    checks.equal(kit.temporary(), [], f"{why}: nothing is left in the temporary folder")
    running = set(stage.look().processes.values())
    checks.equal(running & {"kestrel.exe", "eagle.exe", "contract-tests.exe", "kestrel-check.exe"}, set(),
                 f"{why}: no program of the check runs on")
    checks.equal(len(stage.look().running("witness.exe")), 1, f"{why}: nor its witness")


def ends_with(checks, kit, english, german):
    said = [line.partition(" kestrel-check.txt")[0] for line in kit.printed()[-2:]]
    checks.equal(said, [english, german], "its last words are told in both languages")


def stopped(stage, checks, kit):
    """By a key, in the middle of it."""
    process = kit.start(SHORT, system=32)
    checks.that(kit.tells("schematic: a toolbar appears"), "the check is on its way")
    stage.screen.key("space")
    checks.equal(stage.witness.exit_code(process), 1, "a key stops it within seconds")
    checks.equal(kit.failures(), ["FAIL  the main scene, 32 bits is played to its end; seen: a key of the user's has stopped it"],
                 "the report says so")
    ends_with(checks, kit, "Stopped.", "Abgebrochen.")
    leaves_nothing(stage, checks, kit, "stopped")


def whole(stage, checks, kit, system):
    user = OtherProgram(stage)
    user.copy("the user's own")
    remember(stage, "111", TEMPORARY + "\\kestrel-check\\win32\\kestrel\\kestrel.exe")
    remember(stage, "222", "C:\\others\\program.exe")
    pointer = stage.screen.pointer()
    checks.equal(kit.run(SHORT, system=system), 0, "all is played and nothing fails")
    passed, failed = kit.counts() or (0, -1)
    bits = ["win32"] if system == 32 else ["win32", "win64"]
    checks.that(passed > 38 * len(bits) + 22 and failed == 0, "the last line counts the checks", kit.counts())
    checks.equal(kit.failures(), [], "none failed")
    checks.equal(stage.look().foreground, user.window().handle, "the user's window is in front again")
    checks.equal(stage.screen.pointer(), pointer, "the mouse is where it was")
    told(stage, checks, kit, bits)
    leaves_nothing(stage, checks, kit, "played")
    checks.equal(registered(stage), ["222"], "Windows remembers no icon of the check's, and still those of others")
    checks.equal(user.text(), "the user's own", "nothing has been typed into the user's window")
    checks.equal(user.pasted(), "the user's own", "the clipboard holds what the user had copied")


def told(stage, checks, kit, bits):
    report = kit.report()
    lines = kit.printed()
    said = " ".join(lines[:6])
    for words in ("some two minutes", "any key stops it", "etwa zwei Minuten", "jede Taste bricht ab"):
        checks.that(words in said, "it says first that it takes mouse and keyboard", said)
    checks.that(max(map(len, lines)) <= 80, "no line is broken in the console", lines)
    ends_with(checks, kit, "All is well.", "Alles in Ordnung.")
    for words in (r"^Windows: 10\.0\.\d+ ", r"^Screen 1: 1600 x 1200 at 0,0, .*, 96 dpi \(100 %\), primary$", r"^Code pages: ANSI 1252,"):
        checks.that(re.search(words, report, re.M), f"the report tells the system: {words}", report[:800])
    for name in bits:
        number = {"win32": 32, "win64": 64}[name]
        parts = re.findall(rf"^== the (main scene|contract tests), {number} bits$", report, re.M)
        checks.equal(parts, ["main scene", "contract tests"] if name == bits[-1] else ["main scene"],
                     f"{name}: the main scene is played, and the contract tests where it is the system's own")
        pictures = [path for path in kit.pictures() if f"-{name}-" in path.name]
        checks.equal(sorted(path.stem for path in pictures), sorted(f"kestrel-check-{name}-{picture}" for picture in PICTURES),
                     f"{name}: there is a picture of each window")
        colours = [int(subprocess.run(["identify", "-format", "%k", path], check=True, capture_output=True).stdout) for path in pictures]
        checks.that(min(colours) > PAINTED, f"{name}: they show something", colours)
    checks.that(re.search(r"seen: \S", report) and "; seen: \n" not in report, "each check tells what was seen")
    checks.that(not re.search(r"\broot\b|secret plan|users", report, re.I), "no user, folder or title of another program is named")


def broken(stage, checks, kit):
    """Says what is wrong with a program, and hides what is nobody's business."""
    other = stage.prefix.drive / "windows" / "system32"
    stage.prefix.path("C:\\later plan.txt").write_text("")
    kit.replace("win64/kestrel/kestrel.exe", other / "hostname.exe")
    kit.replace("win64/contract-tests.exe", other / "cmd.exe")
    words = f"/c echo I am root in {TEMPORARY} and not in brooter; user=ROOT; later plan.txt - Notepad"
    process = kit.start("win64", *words.split())
    checks.that(kit.tells("the programs stand there and the witness sees"), "the check is on its way")
    # Minimized, so that it takes neither mouse nor keyboard.
    stage.witness.run("cmd.exe /c start /min notepad.exe C:\\later plan.txt")
    checks.that(poll(lambda: stage.look().top("later plan")), "a window comes up meanwhile")
    checks.equal(stage.witness.exit_code(process, 180), 1, "with a Kestrel that does not work the exit code tells")
    checks.that(kit.counts() and kit.counts()[1] > 0, "so does the last line", kit.counts())
    ends_with(checks, kit, "Something is wrong.", "Etwas stimmt nicht.")
    checks.that(any("board: a toolbar appears; seen: 0 toolbars" in line for line in kit.failures()), "the report tells what is missing",
                kit.failures())
    report = kit.report()
    told = "I am <user> in <profile>\\AppData\\Local\\Temp and not in brooter; user=<user>; <title>"
    checks.that(told in report, "what a program prints is told without names, nor with the title of a window that came later", report)
    leaves_nothing(stage, checks, kit, "broken")


def story(stage, checks):
    kit = CheckKit(stage)
    if stage.bits == "win32":
        intruders(stage, checks, kit)
        stopped(stage, checks, kit)
        whole(stage, checks, kit, 32)
    else:
        whole(stage, checks, kit, 64)
        broken(stage, checks, kit)


if __name__ == "__main__":
    play(__file__, story)
