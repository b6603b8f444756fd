"""Short 8-bit mono waves, worked out from a few numbers: the same bytes each time."""
import math
import random
import wave

RATE = 11025


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


def write(path, samples):
    """Writes samples from -1 to 1 as a wave file; its folder is made."""
    path.parent.mkdir(parents=True, exist_ok=True)
    data = bytes(max(0, min(255, round(128 + 120 * s))) for s in samples)
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(1)
        file.setframerate(RATE)
        file.writeframes(data)
