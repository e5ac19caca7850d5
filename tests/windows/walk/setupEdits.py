"""The walk in the setup: what is edited, what OK stores and Cancel drops."""

from driver import settings
from driver.waiting import stays

CALCULATOR = "Activate Unit Calculator"
KINDS = ("board", "schematic", "library")  # of the pages behind the first
WORDS = ("Alpha", "Beta", "Gamma", "Delta")
MOST_ROWS = 8
LAYOUT = ("name", "type")


def stored(world):
    text = world.stage.settings()
    lists = [[tuple(row[key] for key in LAYOUT) for row in settings.rows(text, kind)] for kind in KINDS]
    return lists, int(settings.value(text, "Unit", "visible"))


def use(world):
    """From its coming to its going. Gives whether the user has clicked a window of EAGLE's meanwhile: who has the keyboard
    afterwards is a matter of the display then."""
    form = world.wait(world.setup.comes, "the setup comes and has the keyboard")
    before = stored(world)
    lists, calculators = [list(rows) for rows in before[0]], before[1]
    for _ in range(world.random.randrange(4)):
        page = world.random.randrange(4)
        world.expect(world.setup.turn_to(page), "Ctrl+Tab turns the setup's pages")
        if page == 0:
            world.setup.press(CALCULATOR)
            calculators = 1 - calculators
        else:
            edit(world, lists[page - 1])
    clicked = world.one(3) and held(world, form)
    saved = world.one(2)
    close(world, saved)
    world.expect(world.setup.gone(), "the setup goes")
    wanted = (lists, calculators) if saved else before
    world.wait(lambda: stored(world) == wanted, f"the settings are {wanted}, not {stored(world)}")
    world.calculators = bool(wanted[1])
    return clicked


def edit(world, rows):
    """A row of the page in front."""
    if world.mended and len(rows) < MOST_ROWS and world.one(3):
        world.setup.press("Add EAGLE Command")
        world.wait(lambda: world.setup.texts()[0] == "EAGLE Command", "a new row shows")
        rows.append(("EAGLE Command", str(settings.COMMAND)))
        return
    number = world.random.choice([number for number, row in enumerate(rows) if row[1] != str(settings.SEPARATOR)])
    world.setup.select(number)
    world.expect(world.setup.shows(rows[number][0]), f"a click shows the row {rows[number]}: {world.setup.texts()}")
    word = world.random.choice(WORDS)
    world.expect(world.setup.fill(0, word), f"{word} is typed: {world.setup.texts()}")
    rows[number] = (word, rows[number][1])


def held(world, form):
    """A click on a toolbar does nothing while the setup is up. False if none can be clicked."""
    desktop = world.stage.look()
    for window in world.choices():
        for bar in world.stage.toolbars(window.editor, desktop):
            place = bar.buttons[0].place.middle
            if not world.free(window, place, desktop):
                continue
            before = len(window.editor.executed())
            world.stage.screen.click(*place)
            world.expect(stays(lambda: len(window.editor.executed()) == before, 0.3), "the setup holds the toolbars")
            world.expect(world.setup.form(), "the setup stays")
            world.stage.screen.click(form.client.left + 30, form.client.bottom - 10)
            world.wait(lambda: world.stage.wait_for_focus(form.handle), "a click brings the setup to the front")
            return True
    return False


def close(world, saved):
    how = world.random.randrange(3)
    if saved and how == 0 and world.setup.page() != 0:  # there the letter is an option's too
        world.stage.screen.key("alt+o")
    elif saved:
        world.setup.press("Ok")
    elif how == 0:
        world.setup.press("Cancel")
    else:
        world.stage.screen.key("Escape" if how == 1 else "alt+F4")


def ask_for_calculators(world, wanted):
    """From the tray, if it is not so already."""
    if world.calculators == wanted:
        return
    world.expect(world.tray.choose("configuration"), "Configuration can be chosen")
    world.wait(world.setup.comes, "the setup comes and has the keyboard")
    world.setup.press(CALCULATOR)
    world.setup.press("Ok")
    world.expect(world.setup.gone(), "the setup goes")
    world.calculators = wanted
