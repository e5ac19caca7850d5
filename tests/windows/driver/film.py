"""A moving picture of what goes on: stills of a part of the screen, with the mouse drawn in, shown one after the other."""

import subprocess

COLOURS = 64  # of the palette that all stills share
LAST = 3.0  # seconds that the last still is shown, before it begins again
POINTER = "M 0,0 L 0,17 L 4,13.5 L 6.5,19.5 L 9,18.5 L 6.5,12.5 L 12,12 Z"  # an arrow whose tip is at 0, 0


class Film:
    """`folder` is for the stills, `part` the rectangle of the screen."""

    def __init__(self, screen, folder, part):
        self._screen = screen
        self._folder = folder
        self._part = part
        self._stills = []  # file and seconds

    def still(self, seconds):
        """Takes the screen as it is now, to be shown for some time."""
        file = self._folder / f"{len(self._stills) + 1:02}.png"
        self._screen.picture(file, self._part)
        x, y = self._screen.pointer()
        arrow = f"translate {x - self._part.left},{y - self._part.top} fill white stroke black path '{POINTER}'"
        subprocess.run(["convert", file, "-draw", arrow, file], check=True)
        self._stills.append((file, seconds))

    def cut(self, target):
        """Leaves the moving picture as a GIF that begins again and again."""
        stills = [*self._stills[:-1], (self._stills[-1][0], LAST)]
        shown = [word for file, seconds in stills for word in ("-delay", str(round(seconds * 100)), str(file))]
        subprocess.run(["convert", *shown, "-loop", "0", "-strip", "+dither", "-colors", str(COLOURS), "+map",
                        "-layers", "OptimizePlus", target], check=True)
