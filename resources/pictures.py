#!/usr/bin/env python3
"""Writes 16 by 16 pictures as the rows of a C++ table.

Arguments: KEY=FILE, the file holding 256 pixels of four bytes, red, green, blue, alpha.
The table feeds an image list with a mask colour, so a pixel is either opaque or the mask colour."""

import sys

SIDE = 16
MASK = 0xFFC0C0C0


def pixels(key, data):
    if len(data) != SIDE * SIDE * 4:
        sys.exit(f"{key}: not a picture of {SIDE} by {SIDE}")
    for at in range(0, len(data), 4):
        red, green, blue, alpha = data[at : at + 4]
        if alpha == 0:
            yield MASK
            continue
        value = 0xFF000000 | red << 16 | green << 8 | blue
        if alpha != 255:
            sys.exit(f"{key}: pixel {at // 4} is half transparent")
        if value == MASK:
            sys.exit(f"{key}: opaque pixel {at // 4} has the mask colour")
        yield value


print("// Made by resources/make-art.sh from resources/art; change the drawings, not this file.")
print("// Pixels are 0xAARRGGBB from the top left, row by row; 0xFFC0C0C0 is the mask colour, transparent.")
for argument in sys.argv[1:]:
    key, _, path = argument.partition("=")
    with open(path, "rb") as file:
        values = [f"0x{value:08X}" for value in pixels(key, file.read())]
    print(f'{{ /*key*/ "{key}", {{')
    for at in range(0, len(values), 8):
        print("    " + ", ".join(values[at : at + 8]) + ",")
    print("} },")
