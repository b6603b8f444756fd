#!/usr/bin/env python3
"""Draws the sounds of the vehicles for docs/sounds.md, and prints the figures of that page.

    scripts/draw-sounds.py [FOLDER]

FOLDER is where the build has put the sounds, out/host/generated/sounds if none is given. Each sound
becomes docs/sounds/NAME.png: time to the right, 120 dots a second; pitch upwards, 24 dots an octave
from 25 Hz to 10 kHz, with a line at 100 Hz and at 1 kHz; the brighter, the louder, over 60 dB.
Run it after a change of the sounds. Needs nothing but Python.
"""
import cmath
import math
import pathlib
import struct
import sys
import wave
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOTS_A_SECOND = 120
DOTS_AN_OCTAVE = 24
LOWEST, HIGHEST = 25.0, 10000.0
DEPTH = 60  # dB from the brightest to the dark
# Samples of a window, up to which pitch: a long one tells low pitches apart, a short one shows when.
WINDOWS = ((4096, 200.0), (2048, 800.0), (1024, HIGHEST))


def fourier(values):
    """The discrete Fourier transform of a number of values that is a power of two."""
    count = len(values)
    if count == 1:
        return list(values)
    even, odd = fourier(values[::2]), fourier(values[1::2])
    turned = [cmath.exp(-2j * math.pi * k / count) * odd[k] for k in range(count // 2)]
    return [e + t for e, t in zip(even, turned)] + [e - t for e, t in zip(even, turned)]


def powers(samples, middle, size, loops):
    """The power of each frequency around a sample; a looped sound goes on beyond its ends."""
    windowed = []
    for i in range(size):
        place = middle - size // 2 + i
        inside = loops or 0 <= place < len(samples)
        sample = samples[place % len(samples)] if inside else 0.0
        windowed.append(sample * (0.5 - 0.5 * math.cos(2 * math.pi * (i + 0.5) / size)))
    return [abs(x) ** 2 / size ** 2 for x in fourier(windowed)[:size // 2]]


def read(path):
    with wave.open(str(path), "rb") as file:
        frames = file.readframes(file.getnframes())
        rate = file.getframerate()
    return rate, [s[0] / 32768 for s in struct.iter_unpack("<h", frames)]


def colour(level):
    """From black through blue and red to white, for 0 to 1."""
    level = min(1.0, max(0.0, level))
    stops = [(0.0, (0, 0, 0)), (0.3, (38, 24, 110)), (0.6, (190, 46, 72)), (0.82, (250, 176, 46)),
             (1.0, (255, 255, 236))]
    for (low, dark), (high, bright) in zip(stops, stops[1:]):
        if level <= high:
            share = (level - low) / (high - low)
            return bytes(round(d + share * (b - d)) for d, b in zip(dark, bright))
    return bytes(stops[-1][1])


def picture(rows):
    """A PNG of rows of colours. A palette of 64 keeps it small."""
    palette = [colour(i / 63) for i in range(63)] + [b"\x60\x60\x60"]

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))

    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 3, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"PLTE", b"".join(palette)) +
            chunk(b"IDAT", zlib.compress(b"".join(b"\0" + bytes(r) for r in rows), 9)) +
            chunk(b"IEND", b""))


def spectrogram(rate, samples, loops):
    """Rows of places in the palette, the highest pitch first."""
    pitches = round(DOTS_AN_OCTAVE * math.log2(HIGHEST / LOWEST))
    edges = [LOWEST * 2 ** (i / DOTS_AN_OCTAVE) for i in range(pitches + 1)]
    columns = []
    for column in range(round(len(samples) * DOTS_A_SECOND / rate)):
        middle = round((column + 0.5) * rate / DOTS_A_SECOND)
        spectra = {size: powers(samples, middle, size, loops) for size, _ in WINDOWS}
        levels = []
        for low, high in zip(edges, edges[1:]):
            size = next(size for size, top in WINDOWS if low < top)
            spectrum = spectra[size]
            first, last = low * size / rate, high * size / rate
            if last - first < 1:
                whole, share = divmod((first + last) / 2, 1)
                whole = int(whole)
                power = spectrum[whole] * (1 - share) + spectrum[whole + 1] * share
            else:
                power = max(spectrum[math.ceil(first):math.floor(last) + 1])
            # Higher tones are weaker, but no less heard.
            power *= low ** 0.6 * size
            levels.append(10 * math.log10(power + 1e-20))
        columns.append(levels)
    top = max(max(levels) for levels in columns)
    lines = {round(DOTS_AN_OCTAVE * math.log2(h / LOWEST)) for h in (100, 1000)}
    rows = []
    for pitch in reversed(range(pitches)):
        row = [int(62 * min(1, max(0, 1 + (levels[pitch] - top) / DEPTH))) for levels in columns]
        if pitch in lines:
            row = [63 if x % 6 < 2 else value for x, value in enumerate(row)]
        rows.append(row)
    return rows


def figures(rate, samples, loops):
    """Seconds, loudness, peak, centre of the spectrum, and the strongest tones."""
    loudness = math.sqrt(sum(s * s for s in samples) / len(samples))
    size = 16384
    spectrum = [0.0] * (size // 2)
    for part in range(4):
        middle = round(len(samples) * (part + 0.5) / 4)
        spectrum = [a + b for a, b in zip(spectrum, powers(samples, middle, size, loops))]
    centre = (sum(i * p for i, p in enumerate(spectrum)) / sum(spectrum)) * rate / size
    tones = []
    for i in sorted(range(2, size // 2), key=lambda i: -spectrum[i]):
        hertz = i * rate / size
        if all(abs(hertz - tone) > 6 for tone in tones):
            tones.append(hertz)
        if len(tones) == 4:
            break
    return (f"{len(samples) / rate:.2f} s | {20 * math.log10(loudness):.1f} | "
            f"{20 * math.log10(max(map(abs, samples))):.1f} | {centre:.0f} Hz | "
            + ", ".join(f"{tone:.0f}" for tone in tones))


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT / "out/host/generated/sounds"
    pictures = ROOT / "docs/sounds"
    pictures.mkdir(exist_ok=True)
    script = folder / "sounds.rc"
    if not script.exists():
        sys.exit(f"There are no sounds in {folder}; build them first")
    # The resource script has them in the order in which their checksum is taken.
    paths = [folder / line.split('"')[1] for line in script.read_text().splitlines() if '"' in line]
    checksum = 0
    for path in paths:
        checksum = zlib.crc32(path.read_bytes(), checksum)
    print(f"Pictures and figures are those of the sounds with the CRC-32 {checksum:08x}.\n")
    print("| sound | length | RMS dBFS | peak dBFS | centre of the spectrum | strongest tones, Hz |")
    print("|---|---|---|---|---|---|")
    for path in paths:
        rate, samples = read(path)
        loops = "ignition" not in path.stem
        print(f"| {path.stem} | {figures(rate, samples, loops)} |", flush=True)
        (pictures / (path.stem + ".png")).write_bytes(picture(spectrogram(rate, samples, loops)))


if __name__ == "__main__":
    main()
