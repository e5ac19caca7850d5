"""The program's main job beside the stand-in EAGLE, for people: played and pictured, or left to the user.

Started by run.sh. Without a display the scene is played in a virtual one; pictures and result.txt are left in build/demo.
"""

import os
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from driver import paths, settings  # noqa: E402, the way to it stands above
from driver.stage import Stage  # noqa: E402
from driver.waiting import poll  # noqa: E402

FOLDER = paths.BUILD / "demo"
BITS = "win32"


class UsersDisplay:
    """The display that the user sits at."""

    def __init__(self):
        self.name = os.environ["DISPLAY"]
        self.environment = dict(os.environ)

    def close(self):
        pass


def display_of_the_user():
    """None if there is none that answers."""
    if not os.environ.get("DISPLAY"):
        return None
    answers = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, check=False)
    return UsersDisplay() if answers.returncode == 0 else None


class Report:
    """Says each step and keeps it for result.txt."""

    def __init__(self):
        self.lines = []
        self.good = True

    def step(self, words, seen):
        """`seen` is what was found, or nothing if it was not."""
        self.good = self.good and bool(seen)
        self.lines.append(f"{'ok  ' if seen else 'FAIL'}  {words}" + (f": {seen}" if isinstance(seen, str) else ""))
        print(self.lines[-1], flush=True)

    def write(self):
        self.lines.append("the main job works" if self.good else "the main job does not work")
        print(self.lines[-1])
        (FOLDER / "result.txt").write_text("\n".join(self.lines) + "\n", encoding="utf-8")


def set_up(stage):
    """EAGLE with its three editors, and Kestrel; gives both."""
    eagle = stage.start_eagle()
    editors = stage.three_editors(eagle)
    text = paths.DEMO_SETTINGS.read_text(encoding="cp1252") + "\n[toolbar]\nautoToolbar=1\n"
    stage.start_kestrel(text)
    return eagle, editors


def clicked(stage, kind, editor):
    """Clicks the first button of the editor's toolbar; gives the command that arrived, if it is the right one."""
    expected = settings.buttons(stage.settings(), kind)[0]["path"]
    before = len(editor.executed())
    stage.click_button(editor, 0)
    poll(lambda: len(editor.executed()) > before)
    arrived = editor.executed()[before:]
    return f"\"{arrived[0]}\"" if arrived == [expected] else None


def play():
    report = Report()
    FOLDER.mkdir(parents=True, exist_ok=True)
    with Stage(BITS, FOLDER) as stage:
        _, editors = set_up(stage)
        report.step("EAGLE has opened its editors", ", ".join(editors))
        for kind, editor in editors.items():
            bar = stage.toolbar(editor)
            report.step(f"a toolbar stands in the {kind} window",
                        bar and f"{len(bar.buttons)} buttons, {bar.form.place.width} by {bar.form.place.height} pixels")
        stage.picture("1-toolbars")
        for kind, editor in editors.items():
            report.step(f"a click on the first button of the {kind} toolbar types its command into EAGLE",
                        clicked(stage, kind, editor))
        stage.picture("2-clicked")
        bar = stage.toolbar(editors["board"])
        stage.screen.point(*bar.buttons[2].place.middle)
        report.step("a tool tip comes when the mouse rests on a button",
                    bool(poll(lambda: stage.look().top(class_name="tooltips_class32"))))
        stage.picture("3-tip")
    report.write()
    print(f"pictures are in {FOLDER}")
    return 0 if report.good else 1


def leave_to_user(display):
    with Stage(BITS, FOLDER, display) as stage:
        eagle, _ = set_up(stage)
        print("The windows are yours. Close EAGLE's control panel, or press Ctrl+C, to end.", flush=True)
        try:
            while stage.witness.runs(eagle.process):
                poll(lambda: not stage.witness.runs(eagle.process), 3600)
        except KeyboardInterrupt:
            pass
    return 0


def main():
    display = display_of_the_user()
    return leave_to_user(display) if display else play()


if __name__ == "__main__":
    sys.exit(main())
