#!/usr/bin/env python3
"""Takes the times at which a help file was compiled out of it, so that the same pages give the same bytes.

    undate-help.py FILE.chm

There are two: one in the header of the file, and one among the settings in its part "/#SYSTEM", which is
not compressed.
"""
import struct
import sys


def encoded(data, at):
    """A number whose bytes have seven bits each, and what follows it."""
    value = 0
    while True:
        byte = data[at]
        at += 1
        value = value << 7 | byte & 0x7F
        if byte < 0x80:
            return value, at


def find(data, name):
    """Where the part with that name begins and how long it is. It must not be compressed."""
    directory, = struct.unpack_from("<Q", data, 0x48)
    contents, = struct.unpack_from("<Q", data, 0x58)
    head, chunk_size = struct.unpack_from("<I", data, directory + 8)[0], struct.unpack_from("<I", data, directory + 16)[0]
    for chunk in range(directory + head, contents, chunk_size):
        if data[chunk:chunk + 4] != b"PMGL":
            continue
        free, = struct.unpack_from("<I", data, chunk + 4)
        at = chunk + 20
        while at < chunk + chunk_size - free:
            length, at = encoded(data, at)
            found, at = data[at:at + length], at + length
            section, at = encoded(data, at)
            offset, at = encoded(data, at)
            size, at = encoded(data, at)
            if found == name:
                assert section == 0, "compressed"
                return contents + offset, size
    raise SystemExit(f"no {name.decode()} in it")


def undate(data):
    assert data[:4] == b"ITSF", "no help file"
    data[0x10:0x14] = bytes(4)
    start, size = find(data, b"/#SYSTEM")
    at, stamps = start + 4, 0
    while at < start + size:
        code, length = struct.unpack_from("<HH", data, at)
        if code == 10:
            data[at + 4:at + 8] = bytes(4)
            stamps += 1
        at += 4 + length
    assert stamps == 1, "not one time among the settings"


if len(sys.argv) != 2:
    sys.exit(__doc__)
with open(sys.argv[1], "r+b") as file:
    help_file = bytearray(file.read())
    undate(help_file)
    file.seek(0)
    file.write(help_file)
