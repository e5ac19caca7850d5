"""The user's hands and eyes: mouse and keys by the X server's own input, pictures of the whole screen."""

import re
import subprocess

from driver.waiting import poll


class Screen:
    """All places are in pixels as programs see them that do not know of a screen's resolution: with `scale` 1.5, for 144 dpi,
    the screen has more."""

    def __init__(self, display, scale=1):
        self._environment = display.environment
        self._scale = scale
        self.inputs = 0  # presses of buttons, notches of the wheel and keys, since the beginning

    def _xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], env=self._environment, check=True)

    def _pixels(self, *places):
        """Of the screen."""
        return [round(place * self._scale) for place in places]

    def point(self, x, y):
        self._xdotool("mousemove", *self._pixels(x, y))

    def pointer(self):
        """Where the mouse points."""
        shown = subprocess.run(["xdotool", "getmouselocation"], env=self._environment, capture_output=True, text=True, check=True)
        return tuple(round(int(word.split(":")[1]) / self._scale) for word in shown.stdout.split()[:2])

    def click(self, x, y, button=1):
        self.inputs += 1
        # In two steps, as a hand does it: buttons that light up under the mouse see it come first.
        self.point(x - 1, y)
        self._xdotool("mousemove", *self._pixels(x, y), "click", button)

    def press(self, x, y, button=1):
        """Presses and holds."""
        self.inputs += 1
        self.point(x - 1, y)
        self._xdotool("mousemove", *self._pixels(x, y), "mousedown", button)

    def release(self, button=1):
        self._xdotool("mouseup", button)

    def double_click(self, x, y):
        self.inputs += 2
        self.point(x - 1, y)
        self._xdotool("mousemove", *self._pixels(x, y), "click", "--repeat", 2, "--delay", 30, 1)

    def wheel_down(self, x, y, notches):
        self.inputs += notches
        self.point(x, y)
        self._xdotool("click", "--repeat", notches, "--delay", 30, 5)

    def drag(self, start, end, steps=8):
        """Presses the button at the one place and lets it go at the other, at the speed of a quick hand."""
        self.inputs += 1
        self.point(*start)
        way = ["mousedown", 1]
        for step in range(1, steps + 1):
            way += ["sleep", 0.03, "mousemove", *self._pixels(*(a + (b - a) * step / steps for a, b in zip(start, end)))]
        self._xdotool(*way, "sleep", 0.03, "mouseup", 1)

    def type(self, text):
        self.inputs += len(text)
        self._xdotool("type", "--delay", 15, "--", text)

    def key(self, *names):
        """Keys by their X names: Return, Escape, Tab, alt+F4."""
        self.inputs += len(names)
        self._xdotool("key", "--delay", 15, *names)

    def place(self, title, place):
        """Gives a window, by its title's beginning, another place and size, as the user's mouse would."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}"], env=self._environment,
                               capture_output=True, text=True, check=True).stdout.split()[0]
        self._xdotool("windowsize", found, *self._pixels(place.width, place.height),
                      "windowmove", found, *self._pixels(place.left, place.top))

    def layout(self, name):
        """Changes the keyboard's layout, which is `us` at first. type() then presses the keys that have the letters."""
        subprocess.run(["setxkbmap", name], env=self._environment, check=True)

    def focused(self):
        """Title of the window that keys go to; it lags behind what Windows calls the focus."""
        shown = subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], env=self._environment,
                               capture_output=True, text=True, check=False)
        return shown.stdout.strip()

    def focus_lost(self):
        """Whether keys go to no program: to the window manager's own window, or nowhere at all."""
        return self.focused() in ("Openbox", "")

    def activate(self, title):
        """Asks the window manager to give the keys to the window with this title."""
        exact = re.sub(r"([][\\^$.|?*+(){}])", r"\\\1", title)
        subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{exact}$", "windowactivate"],
                       env=self._environment, capture_output=True, check=False)

    def picture(self, path, part=None):
        """A PNG of the whole screen, or of a rectangle of it."""
        path.parent.mkdir(parents=True, exist_ok=True)
        self._import(*(["-crop", self._geometry(part), "+repage"] if part else []), path)

    def shown(self, place):
        """What a rectangle of the screen shows, to be compared with another look."""
        return self._import("-crop", self._geometry(place), "+repage", "bmp:-")

    def still(self, place):
        """Waits until a rectangle of the screen has stopped changing: what paints itself in its own time is finished when
        several looks show the same."""
        looks = []

        def same():
            looks.append(self.shown(place))
            return len(looks) > 4 and looks[-1] == looks[-2] == looks[-3] == looks[-4]
        return poll(same)

    def colours(self, place):
        """How many colours there are in a rectangle of the screen: few where nothing has been painted."""
        return self.colours_of([place])[0]

    def colours_of(self, places):
        """The same for several rectangles at one moment."""
        parts = [word for place in places for word in ("(", "-clone", "0", "-crop", self._geometry(place), ")")]
        counts = subprocess.run(["convert", "-", *parts, "-delete", "0", "-format", "%k ", "info:"],
                                input=self._import("bmp:-"), capture_output=True, check=True)
        return list(map(int, counts.stdout.split()))

    def _import(self, *options):
        return subprocess.run(["import", "-silent", "-window", "root", *options], env=self._environment,
                              capture_output=True, check=True).stdout

    def _geometry(self, place):
        left, top, width, height = self._pixels(place.left, place.top, place.width, place.height)
        return f"{width}x{height}+{left}+{top}"
