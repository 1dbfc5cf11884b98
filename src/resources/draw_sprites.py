#!/usr/bin/env python3
"""Draws the library's bitmaps and its cursor. Needed only to change them: the files it writes are kept in the tree.

Run without arguments; the files land beside this script. With a directory as the argument it also writes enlarged
PPM views there, for a look at what was drawn.
"""
import math
import struct
import sys
from pathlib import Path

SIZE = 16
CENTRE = 7.5  # pixel centres are whole numbers: a disc of even width lies around 7.5

WHITE, BLACK = (255, 255, 255), (0, 0, 0)
# name: (colour at the highlight, colour at the rim, surround)
SHADES = {
    "green": ((60, 240, 80), (0, 130, 32), WHITE),
    "red": ((253, 1, 1), (172, 0, 0), WHITE),
    "white": ((254, 254, 254), (158, 164, 174), BLACK),
    "yellow": ((255, 246, 40), (205, 140, 0), WHITE),
}
DIAMETERS = {"big": 10, "small": 6}

HAND = """
......XX.........
.....XooX........
.....XooX........
.....XooX........
.....XooX........
.....XooXXX......
.....XooXooXXX...
.....XooXooXooXX.
.....XooXooXooXoX
.XX..XooXooXooXoX
XooX.XooooooooooX
XoooXXooooooooooX
.XoooXooooooooooX
..XoooooooooooooX
..XoooooooooooooX
...XooooooooooooX
...XoooooooooooX.
....XooooooooooX.
....XoooooooooX..
.....XooooooooX..
.....XooooooooX..
.....XXXXXXXXXX..
""".split()
HAND_HOT_SPOT = (6, 0)


def blend(light, dark, t):
    t = min(max(t, 0.0), 1.0)
    return tuple(round(a + (b - a) * t) for a, b in zip(light, dark))


def shade(x, y, radius, light, dark):
    """Distance from a highlight up and left of the middle, in steps of one ball."""
    highlight = round(CENTRE - radius * 0.34)  # on a pixel, so that one has exactly the lightest colour
    d = math.hypot(x - highlight, y - highlight)
    return blend(light, dark, (d / (radius * 1.22)) ** 1.4)


def draw(inside, radius, light, dark, surround):
    rows = [[shade(x, y, radius, light, dark) if inside(x, y) else surround for x in range(SIZE)] for y in range(SIZE)]
    shading = {rows[y][x] for y in range(SIZE) for x in range(SIZE) if inside(x, y)}
    assert surround not in shading
    assert rows[1][1] == surround
    return rows


def disc(diameter, colours):
    radius = diameter / 2
    return draw(lambda x, y: math.hypot(x - CENTRE, y - CENTRE) <= radius - 0.02, radius, *colours)


def star(radius, colours):
    points = []
    for i in range(10):
        r = radius if i % 2 == 0 else radius * 0.5
        angle = math.pi * i / 5
        points.append((CENTRE + r * math.sin(angle), CENTRE + 0.4 - r * math.cos(angle)))

    def inside(x, y):
        result = False
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
                result = not result
        return result

    return draw(inside, radius, *colours)


def bmp(rows):
    """An uncompressed bitmap of 24 bits a pixel. With a colour table, combining a section of it with single bits
    would combine numbers of colours on one system and colours on another."""
    bits = b"".join(struct.pack("<BBB", b, g, r) for row in reversed(rows) for r, g, b in row)
    offset = 14 + 40
    head = struct.pack("<2sIHHI", b"BM", offset + len(bits), 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 24, 0, len(bits), 0, 0, 0, 0)
    return head + info + bits  # rows of 48 bytes need no filling up


def mask(is_set):
    rows = []
    for y in reversed(range(32)):
        bits = sum(1 << (31 - x) for x in range(32) if is_set(x, y))
        rows.append(struct.pack(">I", bits))
    return b"".join(rows)


def hand_at(x, y):
    return HAND[y][x] if y < len(HAND) and x < len(HAND[y]) else "."


def cursor():
    colours = struct.pack("<BBBBBBBB", 0, 0, 0, 0, 255, 255, 255, 0)
    info = struct.pack("<IiiHHIIiiII", 40, 32, 64, 1, 1, 0, 256, 0, 0, 2, 0)
    image = info + colours + mask(lambda x, y: hand_at(x, y) == "o") + mask(lambda x, y: hand_at(x, y) == ".")
    entry = struct.pack("<BBBBHHII", 32, 32, 2, 0, *HAND_HOT_SPOT, len(image), 22)
    return struct.pack("<HHH", 0, 2, 1) + entry + image


def ppm(rows, zoom):
    body = b"".join(b"".join(bytes(c) * zoom for c in row) * zoom for row in rows)
    return b"P6 %d %d 255\n" % (len(rows[0]) * zoom, len(rows) * zoom) + body


def main():
    here = Path(__file__).resolve().parent
    images = {f"point_{name}_{size}": disc(diameter, colours)
              for name, colours in SHADES.items() for size, diameter in DIAMETERS.items()}
    images["star_big"] = star(7.6, SHADES["yellow"])
    images["star_small"] = star(5.2, SHADES["yellow"])
    for name, rows in images.items():
        (here / f"{name}.bmp").write_bytes(bmp(rows))
    (here / "pointing_hand.cur").write_bytes(cursor())
    if len(sys.argv) > 1:
        look = Path(sys.argv[1])
        hand = [[{"X": BLACK, "o": WHITE, ".": (90, 130, 90)}[hand_at(x, y)] for x in range(32)] for y in range(32)]
        sheet = [sum((images[n][y] for n in images), []) for y in range(SIZE)]
        on_black = [[BLACK if c == WHITE and "white" not in n else c for n in images for c in images[n][y]]
                    for y in range(SIZE)]
        (look / "sprites.ppm").write_bytes(ppm(sheet + on_black, 8))
        (look / "sprites_100.ppm").write_bytes(ppm(sheet + on_black, 1))
        (look / "hand.ppm").write_bytes(ppm(hand, 8))


if __name__ == "__main__":
    main()
