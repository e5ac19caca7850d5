"""What must hold on the walk: at any moment, and when nothing happens. A rule that does not hold is told in words."""

from collections import Counter

from driver import settings
from driver.stage import KESTREL

OURS = "EAGLE Kestrel Bench"
GAP, TOP = 25, 21  # pixels: a toolbar to the right end of its host's outer rectangle, from the top of its client area
NARROWEST, CALCULATOR = 700, 200  # pixels: hosts that a calculator follows, its width
MARKS = {"board": ("board -",), "schematic": ("schematic -", "schaltplan -"), "library": ("library -", "bibliothek -")}
KEYS = {"board": "lastBoard", "schematic": "lastSCH", "library": "lastLbr"}
DIALOG, MENU, TIP, ICON = "#32770", "#32768", "tooltips_class32", "__wine_tray_icon"
ERROR_TITLES = ("Kestrel", "Run-time error")


def holds(rectangle, place):
    x, y = place
    return rectangle.left <= x < rectangle.right and rectangle.top <= y < rectangle.bottom


def left_of(form, host):
    """Pixels from the left end of the host's client area."""
    return form.place.left - host.client.left


def _guests(host, class_name):
    """Windows of this class that stand in the host. A look at one that is just going into it may have found it twice."""
    return list({child.handle: child for child in host.children if child.class_name == class_name}.values())


def at_any_moment(world, desktop):
    """Also while a dialog is up, a window opens, an EAGLE hangs."""
    if not world.stage.witness.runs(world.kestrel):
        return "the program runs"
    for window in world.ours(desktop):
        if window.parent or not window.visible:
            continue
        if window.class_name == DIALOG and window.text in ERROR_TITLES:
            return f"no error is shown: {[inner.text for inner in window.inside()]}"
        # What is to go into a host is shown far from all screens before.
        if window.text == OURS and window.class_name == "KestrelForm" and window.place.right > 0:
            return f"a toolbar is never on the desktop: {window.place}"
    if desktop.foreground in desktop.windows and desktop.windows[desktop.foreground].text == OURS:
        return "a toolbar is never in front"
    for window in world.windows:
        host = desktop.windows.get(window.handle)
        for class_name, words in (("KestrelForm", "toolbar"), ("KestrelFrame", "calculator")):
            if host and len(_guests(host, class_name)) > 1:
                return f"a window has one {words} at most: {host.text}"
    return ""


def front(desktop, kind):
    """Handle of the window that a tick finds; None if there is none."""
    for mark in MARKS[kind]:
        for window in desktop.windows.values():
            if window.parent == 0 and mark in window.text.lower():
                return window.handle
    return None


def at_rest(world, desktop):
    fronts = world.fronts()
    if OURS in fronts:
        return f"no toolbar has been in front, not for a moment: {fronts}"
    return _program(world, desktop) or _windows(world, desktop)


def _program(world, desktop):
    """Of the program there is nothing on the desktop but the icon and a calculator's sliver."""
    for window in world.ours(desktop):
        # A tip may still be there, where the mouse was.
        if window.parent == 0 and window.visible and window.class_name not in (TIP, ICON) and window.place.width > 1:
            return f"nothing of the program is on the desktop: {window.class_name} {window.text!r} {window.place}"
        if window.class_name == TIP and window.owner and window.owner not in desktop.windows:
            return "a toolbar's tips go with it"
    if not desktop.top(class_name=ICON):
        return "the icon stands in the tray"
    for file, words in (("execute.txt", "a request is taken"), ("kestrel.sav", "a save comes to its end")):
        if world.stage.prefix.path(f"{KESTREL}\\{file}").exists():
            return words
    return ""


def _windows(world, desktop):
    found = {kind: front(desktop, kind) for kind in MARKS}
    for window in world.windows:
        if not world.awake(window):
            continue
        host = desktop.windows.get(window.handle)
        wrong = "it is there" if not host else _window(world, desktop, window, host, window.handle in found.values())
        if wrong:
            return f"{host and host.text}: {wrong}"
    return ""


def _window(world, desktop, window, host, in_front):
    if not host.enabled:
        return "no window of EAGLE's is held"
    bars = world.stage.toolbars(window.editor, desktop)
    if (in_front or window.left is not None) and len(bars) != 1:
        return f"one toolbar stands in it, not {len(bars)}"
    if not bars:
        return ""
    bar = bars[0]
    if not bar.fits:
        return "its toolbar is as high as its rows"
    if not bar.form.enabled:
        return "its toolbar hears the mouse"
    if world.mended and len(bar.buttons) != len(world.rows(window.kind)) + 1:
        return f"its toolbar has the buttons that are stored, not {len(bar.buttons)}"
    return "" if window.minimised else _places(world, window, host, bar, in_front)


def _places(world, window, host, bar, in_front):
    new = window.left is None
    place = left_of(bar.form, host), bar.form.place.top - host.client.top
    expected = host.place.width - bar.form.place.width - GAP if new else window.left, TOP
    if place != expected:
        return f"its toolbar stands at {expected}, not {place}"
    frames = _guests(host, "KestrelFrame")
    if len(frames) != int(world.calculators if new else window.calculator):
        return f"it has the calculator that was asked for, not {len(frames)}"
    for frame in frames if in_front else []:
        wanted = max(NARROWEST, host.place.width) - CALCULATOR
        if left_of(frame, host) != wanted or not frame.visible:
            return f"its calculator stands at {wanted}, not {left_of(frame, host)}"
    return ""


def settings_wrong(world):
    """What the settings tell of the windows that have got a toolbar."""
    text = world.stage.settings()
    for kind, file in world.files.items():
        seen = settings.value(text, "toolbar", KEYS[kind].lower())
        if file and seen != file:
            return f"{KEYS[kind]} tells the latest file, {file}, not {seen}"
    return ""


def counts(world, desktop):
    """Windows of the program by class; a toolbar's tips may come later."""
    return Counter(window.class_name for window in world.ours(desktop) if window.class_name != TIP)
