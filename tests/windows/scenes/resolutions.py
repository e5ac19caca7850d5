"""A screen of 144 dpi, or of those that KESTREL_DPI names (120,192), with an EAGLE of each kind: one that sees all its pixels,
one that sees the main screen's, and one that is shown 96 to the inch. All places are in the screen's own pixels. Windows enlarges
what the last one shows, with the toolbar in it; Wine tells places and takes clicks so, but paints the toolbar as it is."""

import os
import re
import subprocess
from functools import partial

from play import play_on_each

from driver import paths, settings
from driver.desktop import Rect
from driver.setup import Setup
from driver.tray import Tray
from driver.waiting import poll

DESIGN = 96
KINDS = {"monitor": ("board", "-D monitor"), "system": ("schematic", "-D system"), "unaware": ("library", "")}
ICONS = {"board": "brd", "schematic": "sch", "library": "lbr"}
PAGES = {"board": 1, "schematic": 2, "library": 3}  # of the setup
COMMANDS = [f"window {number}" for number in range(1, 8)]
CALCULATOR_WIDTH = 200  # of its form, in pixels of the design, as all below
FOLLOWED = 700  # the first calculator stands in a host of this width, whatever its own is
GAP, TOP, BUTTON, HIGH, CALCULATOR, PICTURE = 25, 21, 23, 22, 18, 16
WIDTH, HEIGHT = 740, 185


def near(value, wanted, by=1):
    """What is enlarged comes out a pixel larger or smaller."""
    return abs(value - wanted) <= by


def text():
    lists = {}
    for kind, icon in ICONS.items():
        rows = [settings.button(command, command, icon="{kestrelpath}\\" + icon + ".ico,0") for command in COMMANDS]
        rows.insert(4, settings.button("gap", "", settings.SEPARATOR))
        lists[kind] = rows
    return "[global]\nlanguage=10000\n[Unit]\nVisible=1\n" + settings.made({}, **lists)


def stands(checks, stage, editor, name, dpi):
    def here(pixels):
        return pixels * dpi / DESIGN

    def calculators():
        inside = stage.look(editor).windows[editor.handle].children
        return [child for child in inside if child.class_name == "KestrelFrame" and child.visible]

    # It comes behind the toolbar.
    frames = poll(calculators)
    host = stage.look().windows[editor.handle]
    form, buttons = stage.toolbar(editor).form, stage.toolbar(editor).buttons
    right = host.client.left + host.place.width
    checks.that(near(right - form.place.right, here(GAP), 2), f"{name}: the toolbar's gap at the right", right - form.place.right)
    checks.that(near(form.place.top - host.client.top, here(TOP)), f"{name}: its distance from the top", form.place.top - host.client.top)
    sizes = {(button.place.width, button.place.height) for button in buttons}
    checks.that(all(near(width, here(BUTTON)) and near(height, here(HIGH)) for width, height in sizes), f"{name}: size of buttons", sizes)
    tops = sorted({button.place.top for button in buttons})
    checks.equal([sum(button.place.top == top for button in buttons) for top in tops], [4, 4], f"{name}: the rows are those at 96 dpi")
    if not checks.equal(len(frames or []), 1, f"{name}: a calculator"):
        return
    place = frames[0].place
    checks.that(near(place.height, here(CALCULATOR)), f"{name}: the calculator's height", place.height)
    ends = {round(right - here(CALCULATOR_WIDTH)), round(host.client.left + here(FOLLOWED - CALCULATOR_WIDTH))}
    checks.that(any(near(place.left, end, 4) for end in ends), f"{name}: its place", (place.left, ends))
    checks.that(place.bottom <= form.place.top, f"{name}: it stands above the toolbar", (place, form.place))


def pixels(picture, *options, data=None):
    """Of a picture: its width, and red, green, blue and opacity of each."""
    shown = subprocess.run(["convert", picture, *options, "-depth", "8", "-format", "%w\n", "-write", "info:", "rgba:-"],
                           input=data, capture_output=True, check=True).stdout
    width, rest = shown.split(b"\n", 1)
    return int(width), [tuple(rest[at:at + 4]) for at in range(0, len(rest), 4)]


def drawing(kind, side):
    """The icon's own picture of that side: place from its corner, and colour, of each opaque pixel. None if it has none."""
    file = paths.PROJECT / "resources" / f"{ICONS[kind]}.ico"
    sides = subprocess.run(["identify", "-format", "%w ", file], capture_output=True, text=True, check=True).stdout.split()
    if str(side) not in sides:
        return None
    width, all_of_it = pixels(f"{file}[{sides.index(str(side))}]")
    return [(at % width, at // width, colour[:3]) for at, colour in enumerate(all_of_it) if colour[3] == 255]


def config_drawing(side):
    """The same of the picture of "Config", as the program's own table has it."""
    table = (paths.PROJECT / "src" / "toolbars" / "pictures.inc").read_text("ascii")
    packed = re.search(rf'\{{"Config", {side},((?:\s+"[^"]*")+)sv', table)
    if not packed:
        return None
    count, *data = (int(value, 8) for value in re.findall(r"\\(\d{3})", packed[1]))
    colours = [tuple(data[3 * number:3 * number + 3]) for number in range(count)]  # the first is the transparent one
    numbers = [run & 15 for run in data[3 * count:] for _ in range((run >> 4) + 1)]
    return [(at % side, at // side, colours[number]) for at, number in enumerate(numbers) if number]


def shows(stage, place, wanted):
    """Whether the drawing stands somewhere in that place, pixel by pixel."""
    width, seen = pixels("bmp:-", data=stage.screen.shown(place))
    reach = range(0, BUTTON)
    highest = max(y for _x, y, _colour in wanted)
    widest = max(x for x, _y, _colour in wanted)
    return any(all(seen[(y + down) * width + x + right][:3] == colour for x, y, colour in wanted)
               for right in reach if right + widest < width for down in reach if (down + highest) * width < len(seen) - width)


def sharp(checks, stage, editor, kind, name, dpi):
    side = PICTURE * dpi // DESIGN
    stage.screen.point(1, 1199)  # no button is lit up
    wanted, config = drawing(kind, side), config_drawing(side)
    if not wanted:  # it is made smaller from the next one
        checks.that(stage.painted(editor), f"{name}: each button shows a picture")
        return
    pictures = [(f"button {number}", wanted) for number in range(1, len(COMMANDS) + 1)] + [("Config", config)]
    for (button, picture), place in zip(pictures, [button.place for button in stage.toolbar(editor).buttons]):
        checks.that(poll(lambda picture=picture, place=place: shows(stage, place, picture)), f"{name}: {button} shows its own pixels")


def clicks(checks, stage, editor, kind, name):
    editor.to_front()
    poll(lambda: stage.look().foreground == editor.handle, 2)  # the keys come with the click
    buttons = stage.toolbar(editor).buttons
    for number, (command, button) in enumerate(zip(COMMANDS, buttons)):
        before = len(editor.executed())
        stage.screen.click(*button.place.middle)
        poll(lambda count=before: len(editor.executed()) > count)
        checks.equal(editor.executed()[before:], [command], f"{name}: a click on button {number + 1}")
    setup = Setup(stage)
    stage.screen.click(*buttons[-1].place.middle)
    if checks.that(poll(lambda: setup.form() and setup.page() == PAGES[kind]), f"{name}: a click on Config opens the page of the kind"):
        setup.press("Cancel")
        checks.that(setup.gone(), f"{name}: and one on Cancel closes it")


def tray_opens(checks, stage, dpi):
    checks.that(Tray(stage).open(), f"tray, {dpi}: a release of the button opens the menu")
    stage.screen.click(800, 1190)
    checks.that(poll(lambda: Tray(stage).menu() is None), f"tray, {dpi}: a click elsewhere closes it")


def story(stage, checks, dpi):
    editors = {}
    for number, (name, (kind, arguments)) in enumerate(KINDS.items()):
        eagle = stage.start_eagle("eagle-" + name, arguments)
        editors[name] = eagle.open(kind, f"C:\\work\\{name}")
        part = 1 if arguments else dpi / DESIGN  # it gives its place in the pixels that it sees
        editors[name].place(0, round(2 * HEIGHT * number / part), round(WIDTH * dpi / DESIGN / part),
                            round(HEIGHT * dpi / DESIGN / part))
    kestrel = stage.start_kestrel(text())
    for name, editor in editors.items():
        if not checks.that(stage.toolbar(editor), f"{name}, {dpi}: a toolbar appears"):
            continue
        kind, arguments = KINDS[name]
        stands(checks, stage, editor, f"{name}, {dpi}", dpi)
        clicks(checks, stage, editor, kind, f"{name}, {dpi}")
        if arguments:
            sharp(checks, stage, editor, kind, f"{name}, {dpi}", dpi)
        stage.picture(f"{dpi}-{name}", Rect(0, 0, 1600, 1200))
    # Not before the toolbars are there: while they go into their hosts an EAGLE may come in front under an open menu, which under
    # Wine then hears of no click elsewhere.
    tray_opens(checks, stage, dpi)
    checks.that(stage.witness.runs(kestrel), "Kestrel goes on")


if __name__ == "__main__":
    play_on_each(__file__, {dpi: (partial(story, dpi=int(dpi)), {"dpi": int(dpi), "pixels": True})
                            for dpi in os.environ.get("KESTREL_DPI", "144").split(",")})
