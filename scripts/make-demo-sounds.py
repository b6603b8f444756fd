#!/usr/bin/env python3
"""Makes the sounds of the demo game anew: short 8-bit mono waves.

The waves are kept with the project; this is run by hand when one of them is to sound different.
"""
import math
import pathlib
import random
import wave

RATE = 11025
DEMO = pathlib.Path(__file__).parent.parent / "demo"


def engine(hertz, seconds, roughness):
    """A loop of firing strokes: whole periods only, so that its end meets its beginning."""
    noise = random.Random(hertz)
    period = round(RATE / hertz)
    strokes = round(seconds * hertz / 4) * 4
    for stroke in range(strokes):
        loudness = 1.0 if stroke % 4 == 0 else 0.7
        for i in range(period):
            x = i / period
            yield loudness * math.exp(-4 * x) * (
                math.sin(2 * math.pi * x) + roughness * noise.uniform(-1, 1))


def starter(hertz, seconds):
    """A starter that turns, faster and faster."""
    phase = 0.0
    for i in range(round(RATE * seconds)):
        t = i / RATE
        phase += (hertz + 2 * hertz * t) / RATE
        yield 0.6 * abs(math.sin(math.pi * phase)) * math.sin(2 * math.pi * 7 * phase)


def chord(hertz, seconds, fade=0.02):
    """Tones together, faded in and out."""
    count = round(RATE * seconds)
    for i in range(count):
        t = i / RATE
        edge = min(t, seconds - t) / fade
        tone = sum(math.sin(2 * math.pi * h * t) for h in hertz) / len(hertz)
        yield 0.8 * min(1.0, edge) * tone


def tones(hertz, seconds):
    """Tones one after another."""
    for h in hertz:
        yield from chord([h], seconds)


def write(name, samples):
    path = DEMO / name
    path.parent.mkdir(parents=True, exist_ok=True)
    data = bytes(max(0, min(255, round(128 + 120 * s))) for s in samples)
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(1)
        file.setframerate(RATE)
        file.writeframes(data)


write("vehicles/Hornet/engine.wav", engine(70, 0.8, 0.2))
write("vehicles/Hornet/throttle.wav", engine(110, 0.5, 0.4))
write("vehicles/Hornet/start.wav", starter(9, 0.9))
write("vehicles/Hornet/horn.wav", chord([440, 554], 0.7))
write("vehicles/Lorry/diesel.wav", engine(35, 1.0, 0.5))
write("vehicles/Lorry/crank.wav", starter(5, 1.2))
write("vehicles/Lorry/airhorn.wav", chord([233, 277, 349], 1.0))
write("vehicles/Wreck/rattle.wav", engine(25, 0.8, 1.0))
# What the game says in each language stands here as a melody of its own.
write("sounds/English/welcome.wav", tones([523, 659, 784], 0.15))
write("sounds/English/start.wav", tones([440, 440, 880], 0.15))
write("sounds/Deutsch/welcome.wav", tones([392, 494, 587], 0.15))
write("sounds/Deutsch/start.wav", tones([330, 330, 660], 0.15))
