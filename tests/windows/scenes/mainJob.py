"""The main job: a toolbar in each of EAGLE's three kinds of windows, and a click that types a command."""

from play import play

from driver import settings
from driver.waiting import poll

GAP, TOP = 25, 21  # pixels: to the right end of the host's outer rectangle, from the top of its client area
ROW, SEPARATED = 22, 27  # pixels from a row of buttons to the next: where it breaks at a button, at a separator


def stands_right(checks, stage, kind, editor):
    desktop = stage.look()
    host = desktop.windows[editor.handle]
    found = stage.toolbars(editor, desktop)
    if not checks.equal(len(found), 1, f"{kind}: one toolbar stands in the window"):
        return
    form = found[0].form
    checks.equal(form.place.left - host.client.left, host.place.width - form.place.width - GAP,
                 f"{kind}: it stands {GAP} pixels from the right end")
    checks.equal(form.place.top - host.client.top, TOP, f"{kind}: it stands {TOP} pixels from the top")
    configured = settings.buttons(stage.settings(), kind)
    checks.equal(len(found[0].buttons), len(configured) + 1, f"{kind}: all configured buttons and \"Config\" are there")
    lowest = max(button.place.bottom for button in found[0].buttons)
    checks.equal(lowest, form.client.bottom, f"{kind}: it is just as high as its rows of buttons")
    rows = sorted({button.place.top for button in found[0].buttons})
    checks.equal(lowest - rows[-1], ROW, f"{kind}: a row is {ROW} pixels high")
    steps = {below - above for above, below in zip(rows, rows[1:])}
    checks.that(steps and steps <= {ROW, SEPARATED}, f"{kind}: the rows follow each other, a gap where a separator was")


def types_the_command(checks, stage, kind, editor):
    command = settings.buttons(stage.settings(), kind)[0]["path"]
    before = editor.executed()
    stage.click_button(editor, 0)
    poll(lambda: len(editor.executed()) > len(before))
    checks.equal(editor.executed()[len(before):], [command], f"{kind}: a click types the command and Enter")
    checks.that(stage.command_field_focused(editor), f"{kind}: the editor's command field has the focus")
    checks.that(stage.wait_for_focus(editor.handle), f"{kind}: the editor has the keyboard")
    stage.screen.type("display top")
    stage.screen.key("Return")
    poll(lambda: len(editor.executed()) > len(before) + 1)
    checks.equal(editor.executed()[len(before) + 1:], ["display top"], f"{kind}: what the user types next arrives there")


def story(stage, checks):
    eagle = stage.start_eagle()
    editors = stage.three_editors(eagle)
    kestrel = stage.start_kestrel(settings.start_set())
    for kind, editor in editors.items():
        checks.that(stage.toolbar(editor), f"{kind}: a toolbar appears")
    for kind, editor in editors.items():
        stands_right(checks, stage, kind, editor)
    for kind, editor in editors.items():
        checks.that(stage.painted(editor), f"{kind}: all buttons are painted")
    stage.picture("toolbars")
    for kind, editor in editors.items():
        types_the_command(checks, stage, kind, editor)
    stage.picture("clicked")
    for kind, editor in editors.items():
        checks.equal(len(stage.toolbars(editor)), 1, f"{kind}: still one toolbar, many ticks later")
    for key, file in (("lastBoard", "demo.brd"), ("lastSCH", "demo.sch"), ("lastLbr", "parts.lbr")):
        checks.equal(settings.value(stage.settings(), "toolbar", key), "C:\\work\\" + file, f"{key} tells the file")
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play(__file__, story)
