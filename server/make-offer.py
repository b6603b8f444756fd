#!/usr/bin/env python3
"""Makes what the demo's maker offers, as a folder to be published: what stands in offer, and the
archives of the add-ons.

    make-offer.py FOLDER [INSTALLER]

FOLDER     where it is made. FOLDER/offer is the folder to be published; FOLDER/addons holds the
           add-ons as they come out of their archives. Both are made anew, byte for byte the same
           each time.
INSTALLER  the program that is offered as the pack's next release. Without it there is none.
"""
import pathlib
import shutil
import sys
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "scripts"))
sys.dont_write_bytecode = True

from waves import chord, engine, starter, tones, write  # noqa: E402

SOUNDS = {
    "cars/cricket/Cricket/engine.wav": engine(95, 0.6, 0.15),
    "cars/cricket/Cricket/throttle.wav": engine(150, 0.4, 0.3),
    "cars/cricket/Cricket/start.wav": starter(12, 0.7),
    "cars/cricket/Cricket/horn.wav": chord([880], 0.4),
    "cars/coach/Coach/diesel.wav": engine(40, 0.9, 0.4),
    "cars/coach/Coach/crank.wav": starter(6, 1.1),
    "cars/coach/Coach/twotone.wav": tones([311, 233], 0.4),
    # What the game says stands here as a melody, as in the demo game.
    "langs/Francais/welcome.wav": tones([587, 740, 880], 0.15),
    "langs/Francais/start.wav": tones([494, 494, 988], 0.15),
}


def pack(folder, archive):
    """Puts all that is in the folder into an archive, as it is to lie in the game."""
    archive.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED) as file:
        for path in sorted(folder.rglob("*")):
            if path.is_file():
                entry = zipfile.ZipInfo(path.relative_to(folder).as_posix(), (2026, 1, 1, 0, 0, 0))
                entry.compress_type = zipfile.ZIP_DEFLATED
                file.writestr(entry, path.read_bytes())


def main(target, installer=None):
    offer, addons = pathlib.Path(target, "offer"), pathlib.Path(target, "addons")
    for folder, source in ((offer, HERE / "offer"), (addons, HERE / "addons")):
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(source, folder)
    for name, samples in SOUNDS.items():
        write(addons / name, samples)
    for addon in sorted(addons.glob("*/*")):
        pack(addon, offer / addon.parent.name / (addon.name + ".zip"))
    if installer:
        shutil.copyfile(installer, offer / "software/sk2up.exe")


if len(sys.argv) not in (2, 3):
    sys.exit(__doc__)
main(*sys.argv[1:])
