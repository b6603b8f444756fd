#!/usr/bin/env python3
"""Makes the sounds of the demo game anew.

The waves are kept with the project; this is run by hand when one of them is to sound different.
"""
import pathlib

import waves
from waves import chord, engine, starter, tones

DEMO = pathlib.Path(__file__).parent.parent / "demo"


def write(name, samples):
    waves.write(DEMO / name, samples)


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
