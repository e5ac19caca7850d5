"""What happens on the walk. A routine gives False where there was nothing that it could be played with."""

import os

from driver import settings
from driver.stage import KESTREL
from driver.waiting import poll, stays
from walk import setupEdits
from walk.world import FILE_DIALOG, INPUT_BOX

MOST = 6  # windows
MINIMISE, RESTORE = 6, 9
RIGHT = 3  # button of the mouse
HANG = 20  # seconds, unless it is woken
SPLASH_SIZE = (6030 // 15 + 2, 2865 // 15 + 2)  # pixels
LENGTHS = {"100": "2.54", "1000": "25.4", "500": "12.7", "0": "0"}  # mils, millimetres
BESIDE = (300, 1100)  # a place of the screen where no window is


def form_without_title(world):
    """The splash; not the form that a calculator's frame has left."""
    found = [form for form in world.stage.look().top(class_name="KestrelForm")
             if form.text == "" and (form.place.width, form.place.height) == SPLASH_SIZE]
    return found[0] if found else None


def dialog(world, title, class_name=None):
    found = world.stage.look().top(title, class_name)
    return found[0] if found else None


def answered(world, title, *keys, held=None):
    """A dialog comes up, has the keyboard, holds EAGLE's window if it is to, and goes by its last key."""
    seen = world.wait(lambda: dialog(world, title), f"{title} comes up")
    world.wait(lambda: world.stage.wait_for_focus(seen.handle), f"{title} has the keyboard")
    if held:
        world.wait(lambda: not world.stage.look().windows[held.handle].enabled, f"{title} holds EAGLE's window")
    world.stage.screen.key(*keys)
    world.wait(lambda: not dialog(world, title), f"{title} goes")


# EAGLE's windows

def opens(world):
    awake = [eagle for eagle in world.eagles if eagle is not world.sleeping]
    if len(world.windows) >= MOST or not awake:
        return False
    kind = world.random.choice(world.kinds())
    world.open(kind, "" if world.one(6) else world.file(kind), world.random.choice(awake))
    return True


def worked_in(world):
    """A window that the user has just chosen to work in; None if there is none."""
    found = world.choices()
    if not found:
        return None
    window = world.random.choice(found)
    world.take(window)
    return window


def closes(world):
    found = world.choices()
    if not found:
        return False
    window = world.random.choice(found)
    if world.one(3):
        world.take(window)
        world.stage.screen.key("alt+F4")
    else:
        window.editor.close()
    world.wait(lambda: window.handle not in world.stage.look().windows, "a window closes")
    world.windows.remove(window)
    return True


def renamed(world):
    # Without a file it must not come to be looked at while others of its kind may stand before it.
    found = world.choices(lambda window: window.left is not None or not window.file)
    if not found:
        return False
    window = world.random.choice(found)
    new = window.left is None
    if new and window.kind not in world.kinds():
        return False
    if new:
        world.take(window)
    window.file = world.file(window.kind) if new or not world.one(4) else ""
    window.title = world.title(window.kind, window.file)
    window.editor.eagle.order("title", window.editor.number, window.title)
    return True


def moved(world):
    found = world.choices(lambda window: window.left is not None)
    if not found:
        return False
    random = world.random
    random.choice(found).editor.place(random.randrange(800), random.randrange(480), random.randrange(480, 780),
                                      random.randrange(380, 560))
    return True


def raised(world):
    return worked_in(world) is not None


def clicked(world):
    """A click on what can be seen of a window."""
    window = world.random.choice(world.windows) if world.windows else None
    desktop = world.stage.look()
    if not window or not world.awake(window) or window.minimised:
        return False
    client = desktop.windows[window.handle].client
    place = client.left + 100, client.bottom - 60
    if not world.free(window, place, desktop):
        return False
    world.stage.screen.click(*place, world.random.choice((1, 1, RIGHT)))
    world.wait(lambda: world.stage.look().foreground == window.handle, "a click brings a window to the front")
    return True


def minimised(world):
    """Or restored."""
    found = [window for window in world.windows if world.awake(window) and window.left is not None]
    if not found:
        return False
    window = world.random.choice(found)
    window.minimised = not window.minimised
    window.editor.eagle.order("show", window.editor.number, MINIMISE if window.minimised else RESTORE)
    return True


def ends_and_starts(world):
    """An EAGLE, by itself or by force."""
    eagle = world.random.choice(world.eagles)
    if world.one(2):
        eagle.order("quit")
    else:
        world.stage.witness.order("terminate", eagle.process)
        world.posted += 1
    world.expect(world.stage.witness.exit_code(eagle.process) is not None, "EAGLE ends")
    world.gone(eagle)
    world.start_eagle()
    return True


def hangs(world):
    """An EAGLE, while the user goes on with Kestrel."""
    world.sleeping = world.random.choice(world.eagles)
    order = world.sleeping.hang(HANG)
    event = world.random.choice((opens, menu, info, message, configuration, request, types, button))
    event(world)
    world.settle()
    world.expect(not world.sleeping.answered(order), "what the user asks for comes while EAGLE hangs")
    world.sleeping.wake(order)
    world.sleeping = None
    return True


# The user in EAGLE

def types(world):
    window = worked_in(world)
    if not window:
        return False
    world.wait(lambda: world.stage.wait_for_focus(window.handle), "the keys go to EAGLE")
    before = len(window.editor.executed())
    text = world.random.choice(("rat", "drc", "grid"))
    world.stage.screen.type(text)
    world.stage.screen.key("Return")
    world.wait(lambda: len(window.editor.executed()) > before, "EAGLE gets a command")
    world.expect(window.editor.executed()[-1].endswith(text), f"it is the one that was typed: {window.editor.executed()[-1]}")
    return True


def with_button(world, wanted):
    """A window in front, and a button of its toolbar: number and place. None where a click reaches none."""
    found = world.choices(lambda window: window.left is not None)
    if not found:
        return None
    window = world.random.choice(found)
    world.take(window)
    buttons = [one for one in world.buttons(window) if wanted(one[0], len(world.rows(window.kind)))]
    return (window, *world.random.choice(buttons)) if buttons else None


def button(world):
    """A click on a configured button, and what it does."""
    found = with_button(world, lambda number, rows: number < rows)
    if not found:
        return False
    window, number, place = found
    row = world.rows(window.kind)[number]
    before = len(window.editor.executed())
    world.stage.screen.click(*place)
    if int(row["type"]) == settings.PROGRAM:
        notepad_comes(world)
        return True
    confirmed = int(row["dialog"]) == settings.NONE
    if int(row["dialog"]) == settings.INPUT_BOX:
        confirmed = world.one(2)
        answered(world, INPUT_BOX, *("a", "b", "Return") if confirmed else ("Escape",))
    elif int(row["dialog"]) == settings.FILE_DIALOG:
        answered(world, FILE_DIALOG, "Escape", held=window)
    if confirmed:
        command = row["path"] + (" ab" if int(row["dialog"]) == settings.INPUT_BOX else "")
        world.wait(lambda: len(window.editor.executed()) > before, f"a click types {command!r}")
        seen = window.editor.executed()[before:]
        world.expect(seen[0].endswith(command), f"a click types {command!r}, not {seen}")
    world.given_back(window, f"after the button {row['name']} its window has the keyboard")
    return True


def mouse_over(world):
    found = with_button(world, lambda number, rows: True)
    if not found:
        return False
    x, y = found[2]
    action = world.random.randrange(3)
    if action == 0:
        world.stage.screen.point(x, y)
    elif action == 1:
        world.stage.screen.wheel_down(x, y, 2)
    else:
        world.stage.screen.click(x, y, RIGHT)
    return True


def fields_of(world, window, desktop):
    frames = [child for child in desktop.windows[window.handle].children if child.class_name == "KestrelFrame"]
    fields = [child for frame in frames for child in frame.children if child.class_name == "Edit"]
    return sorted(fields, key=lambda field: field.place.left)


def joined(world, window):
    """Whether Kestrel's input is joined with this window's EAGLE: Wine does that with one at a time."""
    bars = world.stage.toolbars(window.editor)
    active = int(world.stage.witness.order("active", bars[0].form.handle)) if bars else 0
    return any(one.handle == active for one in world.windows if one.editor.eagle is window.editor.eagle)


def calculates(world):
    found = world.choices(lambda window: window.calculator)
    if not found:
        return False
    window = world.random.choice(found)
    world.take(window)
    desktop = world.stage.look()
    fields = fields_of(world, window, desktop)
    if not world.free(window, fields[0].place.middle, desktop) or not joined(world, window):
        return False
    world.stage.screen.click(*fields[0].place.middle)
    world.wait(lambda: world.stage.look().focus == fields[0].handle, "a click gives a calculator's field the keyboard")
    world.expect(world.stage.wait_for_focus(window.handle), "the keys go to its window")
    mils, millimetres = world.random.choice(tuple(LENGTHS.items()))
    world.stage.screen.key("ctrl+a")
    world.stage.screen.type(mils)
    world.wait(lambda: [field.text for field in fields_of(world, window, world.stage.look())] == [mils, millimetres],
               f"a calculator shows {millimetres} for {mils}")
    world.take(window)
    return True


# The tray, the setup, the system

def leaves(world, window, words):
    if window:
        world.given_back(window, f"after {words} the user's window has the keyboard")
    return True


def menu(world):
    window = worked_in(world)
    world.expect(world.tray.open(world.random.choice((1, RIGHT))), "a click on the icon opens the menu")
    if world.sleeping or world.one(2):  # the keys may be with the one that hangs
        world.stage.screen.click(*BESIDE)
    else:
        world.stage.screen.key("Escape")
    world.wait(lambda: world.tray.menu() is None, "the menu goes")
    return leaves(world, window, "the menu")


def info(world):
    window = worked_in(world)
    world.expect(world.tray.choose("info"), "Info can be chosen")
    seen = world.wait(lambda: form_without_title(world), "Info comes up")
    if world.one(2):
        world.stage.screen.click(*seen.place.middle)
    world.wait(lambda: form_without_title(world) is None, "Info goes")
    return leaves(world, window, "Info")


def message(world):
    """EAGLE's path is wrong."""
    window = worked_in(world)
    world.expect(world.tray.choose("eagle"), "Open EAGLE can be chosen")
    answered(world, "Information", world.random.choice(("Return", "Escape")))
    return leaves(world, window, "a message")


def configuration(world):
    """From the tray."""
    window = worked_in(world)
    world.expect(world.tray.choose("configuration"), "Configuration can be chosen")
    return leaves(world, None if setupEdits.use(world) else window, "the setup from the tray")


def config(world):
    """By a toolbar's last button."""
    found = with_button(world, lambda number, rows: number >= rows)
    if not found:
        return False
    window, _, place = found
    world.stage.screen.click(*place)
    return leaves(world, None if setupEdits.use(world) else window, "the setup")


def notepad_comes(world):
    def there():
        return world.stage.look().running("notepad.exe")

    world.wait(there, "a program is started")
    for process in there():
        world.stage.witness.order("terminate", process)
    world.wait(lambda: not there(), "the program that was started has ended")


def request(world):
    written = world.stage.prefix.path(KESTREL + "\\request.tmp")
    written.write_text("C:\\windows\\notepad.exe")
    os.rename(written, world.stage.prefix.path(KESTREL + "\\execute.txt"))
    world.posted += 1
    notepad_comes(world)
    return True


def shell_starts_anew(world):
    """The icon goes behind Kestrel's back, then the shell tells that it is there."""
    icon = world.tray.icon()
    owner = world.tray.lose_icon()
    world.wait(lambda: world.tray.icon() is None, "the shell loses the icon")
    world.stage.witness.order("post", owner.handle, "@TaskbarCreated", 0, 0)
    world.posted += 1
    world.wait(lambda: (world.tray.icon() or icon).handle != icon.handle, "when the shell has started anew the icon is back")
    return True


def time_passes(world):
    """Some ticks: nothing changes by itself."""
    before = [window.left for window in world.windows]
    stays(lambda: world.stage.look() and before == [window.left for window in world.windows], 0.6)
    return True


ALL = ((opens, 30), (closes, 14), (renamed, 14), (moved, 20), (raised, 14), (clicked, 14), (minimised, 10),
       (ends_and_starts, 2), (hangs, 6), (types, 14), (button, 40), (mouse_over, 10), (calculates, 16), (menu, 8), (info, 4),
       (message, 6), (configuration, 7), (config, 10), (request, 3), (shell_starts_anew, 2), (time_passes, 3))


def any_of_them(world):
    """By weight."""
    return world.random.choices([one for one, _ in ALL], [weight for _, weight in ALL])[0]
