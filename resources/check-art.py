#!/usr/bin/env python3
"""Checks the committed pictures: sizes, depth and masks of the icons, the splash pictures and how they
meet, the table of toolbar pictures. Prints what is wrong and ends with 1, or one line and 0."""

import pathlib
import re
import struct
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
MASK = 0xC0C0C0
PAPER = bytes.fromhex("FFFFC0")
SIZED = re.compile(r"-\d+$")  # end of a drawing's name that is for one size
SIZES = [16, 20, 24, 32, 48]  # of every icon: what screens of 96, 120, 144 and 192 dpi show, and one larger
SQUARE, SQUARE_AT = (93, 93), (16, 12)  # size and place on the splash form
WIDE, WIDE_AT = (361, 76), (28, 68)

wrong = []


def expect(condition, text):
    if not condition:
        wrong.append(text)


def icon(path, sizes):
    try:
        images(path, path.read_bytes(), sizes)
    except (struct.error, IndexError, OSError) as error:
        expect(False, f"{path.name}: not a whole icon: {error}")


def images(path, data, sizes):
    reserved, kind, count = struct.unpack_from("<3H", data)
    expect((reserved, kind) == (0, 1), f"{path.name}: not an icon")
    found = []
    for n in range(count):
        width, height, _, _, _, bits, length, at = struct.unpack_from("<4B2H2L", data, 6 + 16 * n)
        found.append(width)
        name = f"{path.name}, {width} pixels"
        header = struct.unpack_from("<L2l2HL", data, at)
        expect(header == (40, width, 2 * height, 1, 32, 0), f"{name}: not a plain 32-bit image: {header}")
        expect(bits == 32 and width == height, f"{name}: directory says {width} by {height}, {bits} bits")
        stride = (width + 31) // 32 * 4
        expect(length == 40 + 4 * width * height + stride * height, f"{name}: image has the wrong length")
        opaque = 0
        for y in range(height):
            for x in range(width):
                (pixel,) = struct.unpack_from("<L", data, at + 40 + 4 * (y * width + x))
                mask = data[at + 40 + 4 * width * height + y * stride + x // 8] >> (7 - x % 8) & 1
                alpha = pixel >> 24
                opaque += alpha >= 128
                expect(mask == (alpha == 0), f"{name}: mask and alpha disagree at {x}, {height - 1 - y}")
                expect(alpha or pixel == 0, f"{name}: colour under the mask at {x}, {height - 1 - y}")
                if width == 16:
                    expect(alpha in (0, 255), f"{name}: soft pixel at {x}, {height - 1 - y}")
                    expect(alpha == 0 or pixel & 0xFFFFFF != MASK, f"{name}: pixel in the mask colour")
        expect(opaque > width * height // 5, f"{name}: next to nothing is drawn")
    expect(found == sizes, f"{path.name}: sizes {found}, wanted {sizes}")


def gif(path, size):
    data = path.read_bytes()
    expect(data[:6] == b"GIF87a", f"{path.name}: not a GIF as the program reads it")
    found = struct.unpack_from("<2H", data, 6)
    expect(found == size, f"{path.name}: {found}, wanted {size}")
    run = subprocess.run(["convert", path, "-depth", "8", "RGB:-"], stdout=subprocess.PIPE, check=True)
    expect(len(run.stdout) == 3 * size[0] * size[1], f"{path.name}: not one frame of {size}")
    return run.stdout


def bitmap(path, size):
    header = struct.unpack_from("<L2l2HL", path.read_bytes(), 14)
    expect(header == (40, *size, 1, 8, 0), f"{path.name}: not a plain bitmap of {size}: {header}")


def splash(times, end):
    """Both pictures of a splash that is so many times as large as the design."""
    def scaled(values):
        return tuple(times * value for value in values)

    squareSize, squareAt, wideSize, wideAt = (scaled(values) for values in (SQUARE, SQUARE_AT, WIDE, WIDE_AT))
    squareName, wideName = f"splash-square{end}.gif", f"splash-wide{end}.gif"
    square = gif(HERE / squareName, squareSize)
    wide = gif(HERE / wideName, wideSize)

    def pixel(picture, size, at, x, y):
        start = 3 * ((y - at[1]) * size[0] + x - at[0])
        return picture[start : start + 3]

    left, top = squareAt
    right, bottom = left + squareSize[0] - 1, top + squareSize[1] - 1
    for x, y in ((left, top), (right, top), (left, bottom), (right, bottom)):
        expect(pixel(square, squareSize, squareAt, x, y) == PAPER, f"{squareName}: background at {x}, {y}")
    for x in range(136 * times, 389 * times):  # the caption's second line stands here
        for y in range(68 * times, 117 * times):
            expect(pixel(wide, wideSize, wideAt, x, y) == PAPER, f"{wideName}: background at {x}, {y}")
    for x in range(wideAt[0], squareAt[0] + squareSize[0]):
        for y in range(wideAt[1], squareAt[1] + squareSize[1]):
            same = pixel(square, squareSize, squareAt, x, y) == pixel(wide, wideSize, wideAt, x, y)
            expect(same, f"the splash pictures{end} differ where they overlap, at {x}, {y}")


def samples():
    """What a drawing of an icon for buttons is made into, and what the library of all of them is made of."""
    drawings = {path.stem for path in (HERE / "art/samples").glob("*.svg")}
    names = {name for name in drawings if not SIZED.search(name)}
    for name in sorted(drawings - names):
        expect(SIZED.sub("", name) in names, f"art/samples/{name}.svg: no drawing for the other sizes")
    made = {path.stem for path in (HERE / "samples").glob("*.ico")}
    for name in sorted(names ^ made):
        expect(False, f"samples/{name}.ico: " + ("not made: run make-art.sh" if name in names else "has no drawing"))
    listed = re.findall(r'^(\d+) ICON "(.+)\.ico"', (HERE / "samples/icons.rc").read_text("ascii"), re.M)
    expect([number for number, _ in listed] == [str(place + 1) for place in range(len(listed))],
           "icons.rc: the places do not follow each other")
    expect(sorted(name for _, name in listed) == sorted(names), f"icons.rc: not every icon once: {sorted(names)}")
    for name in sorted(made):
        icon(HERE / f"samples/{name}.ico", SIZES)


def unpacked(name, data):
    """The pixels of a picture of the table, red, green and blue of each; the first colour is the mask."""
    count = data[0]
    colours = [data[at : at + 3] for at in range(1, 1 + 3 * count, 3)]
    expect(0 < count <= 16 and colours[0] == bytes.fromhex("C0C0C0"), f"{name}: {count} colours, the first {colours[0].hex()}")
    expect(len(set(colours)) == count, f"{name}: a colour twice")
    pixels = []
    for run in data[1 + 3 * count :]:
        expect(run & 15 < count, f"{name}: colour {run & 15} of {count}")
        pixels += [colours[min(run & 15, count - 1)]] * ((run >> 4) + 1)
    return pixels


def table():
    path = HERE.parent / "src/toolbars/pictures.inc"
    rows = re.findall(r'\{"(\w+)", (\d+),((?:\s+"[^"]*")+)sv\}', path.read_text("ascii"))
    wanted = [(key, size) for key in ("Separator", "BRD", "SCH", "LBR", "Config", "Over")
              for size in (SIZES[:1] if key in ("Separator", "Over") else SIZES)]
    expect([(key, int(side)) for key, side, _ in rows] == wanted, f"{path.name}: pictures {[row[:2] for row in rows]}")
    for key, text, body in rows:
        side = int(text)
        name = f"{path.name}, {key}, {side} pixels"
        pixels = unpacked(name, bytes(int(value, 8) for value in re.findall(r"\\(\d{3})", body)))
        expect(len(pixels) == side * side, f"{name}: {len(pixels)} pixels")
        drawn = sum(pixel != MASK.to_bytes(3, "big") for pixel in pixels)
        expect(side * side // 4 < drawn < side * side, f"{name}: {drawn} pixels drawn")


for name in ("kestrel", "brd", "sch", "lbr"):
    icon(HERE / f"{name}.ico", SIZES)
samples()
splash(1, "")
splash(2, "-2")
bitmap(HERE / "installer.bmp", (164, 314))  # the size that the installer's pages want
table()
if wrong:
    print("\n".join(wrong[:20]))
    sys.exit(f"check-art: {len(wrong)} faults")
print("check-art: all pictures are as they should be")
