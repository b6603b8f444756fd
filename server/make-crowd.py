#!/usr/bin/env python3
"""Makes a folder of many add-ons, to be published for a load test: 60 cars, 30 tracks, 10 languages.

    make-crowd.py FOLDER [SEED]

Another SEED gives archives of the same names with other contents.
"""
import pathlib
import random
import sys
import zipfile

SIZES = {"cars": (60, 150_000), "tracks": (30, 400_000), "langs": (10, 1_000_000)}
FILES = {"cars": ("{0}.vhc", b"skidrun=100\r\nhornsound=horn.wav\r\n"),
         "tracks": ("{0}.trk", b"0\r\n0\r\n5000\r\n-1\r\n0\r\n"),
         "langs": ("welcome.wav", b"welcome")}


def main(target, seed="1"):
    chance = random.Random(seed)
    for kind, (count, size) in SIZES.items():
        folder = pathlib.Path(target, kind)
        folder.mkdir(parents=True, exist_ok=True)
        for number in range(count):
            name = f"{kind[:-1]}{number:03}"
            with zipfile.ZipFile(folder / (name + ".zip"), "w") as archive:
                file, text = FILES[kind]
                archive.writestr(file.format(name), text)
                archive.writestr("horn.wav", chance.randbytes(chance.randrange(size // 2, size)))
    pathlib.Path(target, "software").mkdir(exist_ok=True)
    pathlib.Path(target, "software/versions.txt").write_text("sk2up=1.0.0\n")


if len(sys.argv) not in (2, 3):
    sys.exit(__doc__)
main(*sys.argv[1:])
