"""Kestrel's icon in the tray and its menu, as a user sees and uses them."""

from driver.waiting import LIMIT, poll

LEFT, RIGHT = 1, 3  # buttons of the mouse
OWNER = "Kestrel Strip for EAGLE"  # title of the hidden window that has the icon
RESTING = 3  # so many looks in a row see an icon that rests at one place

# The menu's lines from its top: five entries, and two separators of half their height.
LINES = (("info", 2), ("help", 2), (None, 1), ("eagle", 2), ("configuration", 2), (None, 1), ("exit", 2))


class Tray:
    def __init__(self, stage):
        self._stage = stage

    def icon(self):
        """The icon's window; None if there is none."""
        found = self._stage.look().top(class_name="__wine_tray_icon")
        return found[0] if found else None

    def resting(self):
        """The icon once it rests: a tray that has just been given one still moves it about. None if there is none."""
        places = []

        def rests():
            icon = self.icon()
            places.append(icon.place if icon else None)
            return icon if places[-RESTING:] == [places[-1]] * RESTING else None
        return poll(rests)

    def menu(self):
        """The menu that is open; None if none is."""
        found = self._stage.look().top(class_name="#32768")
        return found[0] if found else None

    def open(self, button=RIGHT):
        """Clicks on the icon and waits for the menu; None if it does not come."""
        icon = self.resting()
        if not icon:
            return None
        self._stage.screen.click(*icon.place.middle, button)
        return poll(self.menu)

    def choose(self, entry, button=RIGHT):
        """Opens the menu and clicks one of its entries. False if the menu does not come, or does not go."""
        menu = self.open(button)
        if not menu:
            return False
        self._stage.screen.click(*self.place_of(menu, entry))
        return poll(lambda: self.menu() is None)

    def lose_icon(self):
        """Takes the icon away behind Kestrel's back, as a shell does that starts anew. Gives Kestrel's window that is to
        be told of it."""
        owner = next(window for window in self._stage.look().windows.values() if window.text == OWNER)
        self._stage.witness.order("untray", next(child.handle for child in owner.children if child.class_name == "Edit"))
        return owner

    @staticmethod
    def place_of(menu, entry):
        """Middle of an entry."""
        whole = sum(height for _, height in LINES)
        above = 0
        for name, height in LINES:
            if name == entry:
                break
            above += height
        x, _ = menu.place.middle
        return x, menu.place.top + round(menu.place.height * (above + 1) / whole)

    def gone(self, seconds=LIMIT):
        return poll(lambda: self.icon() is None, seconds)
