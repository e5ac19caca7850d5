#!/usr/bin/env python3
"""Writes the fixed toolbar pictures as the rows of a C++ table.

Arguments: KEY=FILE, each file a square picture as PNG; a key comes once for each size, the smallest first. The table feeds an
image list with a mask colour: a pixel that nothing is drawn on has that colour, a soft one is mixed with it, as icons of files are
that are drawn on a surface of it. A picture has 15 colours beside it at most, so that a byte holds a colour and how often it follows."""

import collections
import math
import subprocess
import sys

MASK = bytes.fromhex("C0C0C0")
MOST = 15  # colours beside the mask
LONGEST = 16  # pixels of one byte


def onMask(value, mask, alpha):
    return (value * alpha + mask * (255 - alpha) + 127) // 255


def read(key, file):
    """Side, and the pixels of three bytes: red, green, blue."""
    data = subprocess.run(["convert", file, "-depth", "8", "RGBA:-"], stdout=subprocess.PIPE, check=True).stdout
    side = math.isqrt(len(data) // 4)
    if side * side * 4 != len(data):
        sys.exit(f"{key}: not a square")
    pixels = []
    for at in range(0, len(data), 4):
        *colour, alpha = data[at : at + 4]
        pixels.append(bytes(onMask(value, mask, alpha) for value, mask in zip(colour, MASK)))
        if alpha == 255 and pixels[-1] == MASK:
            sys.exit(f"{key}: opaque pixel {at // 4} has the mask colour")
    return side, pixels


def fewer(pixels):
    """No more colours than there is room for: the one that is missed least becomes the nearest of the others. The mask stays."""
    count = collections.Counter(pixel for pixel in pixels if pixel != MASK)
    becomes = {colour: colour for colour in (MASK, *count)}

    def nearest(colour):
        return min((sum((one - other) ** 2 for one, other in zip(colour, kept)), kept) for kept in count if kept != colour)

    while len(count) > MOST:
        _, colour, other = min((count[colour] * nearest(colour)[0], colour, nearest(colour)[1]) for colour in count)
        count[other] += count.pop(colour)
        becomes = {before: other if after == colour else after for before, after in becomes.items()}
    return [becomes[pixel] for pixel in pixels]


def packed(pixels):
    """How many colours, the colours, then the pixels from the top left, row by row."""
    used = collections.Counter(pixel for pixel in pixels if pixel != MASK)
    colours = [MASK, *sorted(used, key=lambda colour: (-used[colour], colour))]
    runs = []
    for pixel in pixels:
        if runs and runs[-1][0] == pixel and runs[-1][1] < LONGEST:
            runs[-1][1] += 1
        else:
            runs.append([pixel, 1])
    return bytes([len(colours)]) + b"".join(colours) + bytes((count - 1) << 4 | colours.index(pixel) for pixel, count in runs)


print("// Made by resources/make-art.sh from resources/art; change the drawings, not this file.")
print("// Of each picture: how many colours, red, green and blue of each, then for so many pixels (high half, less one) a")
print("// colour (low half), from the top left, row by row. Colour 0 is the mask colour, transparent.")
for argument in sys.argv[1:]:
    key, _, path = argument.partition("=")
    side, pixels = read(key, path)
    data = packed(fewer(pixels))
    print(f'{{"{key}", {side},')
    for at in range(0, len(data), 24):
        text = "".join(f"\\{value:03o}" for value in data[at : at + 24])
        print(f'    "{text}"' + ("sv}," if at + 24 >= len(data) else ""))
