#!/usr/bin/env python3
"""Draws sk2pack.ico: a bend of road with its middle line, and two skid marks that leave it. The dark
plate has a light rim, so that it stands out from a black screen as from a white one. The small sizes
have less on them, in broader strokes: no skid marks, and a middle line without gaps.

Run it in this folder after a change of the drawing; the icon is kept beside it. Needs nothing but
Python."""
import math
import struct
import zlib

SIZES = (16, 20, 24, 32, 40, 48, 64, 128, 256)
SMALL = 24  # and what is smaller
SAMPLES = 4  # each pixel is the mean of 4 x 4 points

GROUND = (34, 94, 60, 255)
ROAD = (58, 62, 70, 255)
EDGE = (245, 245, 245, 255)
LINE = (250, 204, 48, 255)
SKID = (12, 12, 14, 255)
NOTHING = (0, 0, 0, 0)


def colour(x, y, size):
    """The colour at a point of the drawing, both from 0 to 1, y downwards."""
    is_small = size <= SMALL
    # A plate with round corners, and a rim of at least a pixel.
    radius = 0.2
    dx = max(radius - x, x - 1 + radius, 0)
    dy = max(radius - y, y - 1 + radius, 0)
    outside = math.hypot(dx, dy)
    if outside > radius:
        return NOTHING
    rim = 1 / size if is_small else 0.035
    if outside > radius - rim or min(x, y, 1 - x, 1 - y) < rim:
        return EDGE
    # The road turns about the lower right corner, from the bottom to the right.
    angle = math.atan2(1 - y, 1 - x)
    distance = math.hypot(1 - x, 1 - y)
    if is_small:
        if not 0.28 <= distance <= 0.84:
            return GROUND
        if distance < 0.36 or distance > 0.76:
            return EDGE
        return LINE if abs(distance - 0.56) < 0.06 else ROAD
    # The skid marks run straight on where the road bends.
    for start in (0.27, 0.43):
        along = 1.0 - y
        middle = start - 0.10 * along * along
        if 0.34 < along < 0.9 and abs(x - middle) < 0.038:
            return SKID
    if not 0.34 <= distance <= 0.86:
        return GROUND
    if distance < 0.39 or distance > 0.81:
        return EDGE
    if abs(distance - 0.6) < 0.032 and int(angle / (math.pi / 2) * 7) % 2 == 0:
        return LINE
    return ROAD


def picture(size):
    """Rows of RGBA pixels."""
    rows = []
    steps = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    for row in range(size):
        pixels = []
        for column in range(size):
            total = [0, 0, 0, 0]
            for sy in steps:
                for sx in steps:
                    r, g, b, a = colour((column + sx) / size, (row + sy) / size, size)
                    total[0] += r * a
                    total[1] += g * a
                    total[2] += b * a
                    total[3] += a
            alpha = total[3]
            pixels.append(tuple(round(c / alpha) if alpha else 0 for c in total[:3])
                          + (round(alpha / SAMPLES ** 2),))
        rows.append(pixels)
    return rows


def png(rows):
    size = len(rows)

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    data = b"".join(b"\0" + bytes(c for pixel in row for c in pixel) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(data, 9)) + chunk(b"IEND", b""))


def bitmap(rows):
    """As older systems read icons: a bitmap from the bottom up, and a mask that alpha replaces."""
    size = len(rows)
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    data = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    mask = b""
    for row in reversed(rows):
        bits = bytearray((size + 31) // 32 * 4)
        for i, pixel in enumerate(row):
            if pixel[3] < 128:
                bits[i // 8] |= 128 >> i % 8
        mask += bytes(bits)
    return header + data + mask


def main():
    images = []
    for size in SIZES:
        rows = picture(size)
        images.append((size, png(rows) if size >= 128 else bitmap(rows)))
    with open("sk2pack.ico", "wb") as icon:
        icon.write(struct.pack("<HHH", 0, 1, len(images)))
        place = 6 + 16 * len(images)
        for size, data in images:
            icon.write(struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), place))
            place += len(data)
        for _, data in images:
            icon.write(data)


if __name__ == "__main__":
    main()
