#!/usr/bin/env python3
"""Lets sk2check judge a folder of vehicles and packages, beside "unzip -t" on the same archives.

  bench/check/check-folder.py [--count=N] [--rounds=N] [--brief]

Both take turns in one run; the medians and their ratio are printed. It takes out/tools/sk2check
(cmake --preset tools && cmake --build --preset tools). Figures never make it fail; a good file that
is not judged good does.
"""
import argparse
import os
import random
import statistics
import subprocess
import sys
import tempfile
import time
import zipfile

CHECK = os.path.join(os.path.dirname(__file__), "..", "..", "out", "tools", "sk2check")
SOUNDS = ("engine", "throttle", "start", "horn")


def vehicle(number):
    """The lines of a vehicle with four sounds of its own."""
    lines = ["enginesound=engine.wav", "throttlesound=throttle.wav", "startsound=start.wav",
             "hornsound=horn.wav", f"acceleration={number % 90 + 10}", "deceleration=40",
             f"skidrun={number + 100}", "idlefreq=11025", "topfreq=44100", "shiftfreq=22050",
             "numberofgears=5", "steering=10", "steeringfactor=50", "haswipers=1"]
    return "".join(line + "\r\n" for line in lines)


def sound(source, size):
    """Bytes that deflate about as well as a recorded sound."""
    level = 0
    samples = bytearray()
    for _ in range(size // 2):
        level = max(-20000, min(20000, level + source.randint(-900, 900)))
        samples += level.to_bytes(2, "little", signed=True)
    return bytes(samples)


def make(folder, count):
    source = random.Random(11)
    sounds = [sound(source, 40000) for _ in range(16)]
    for number in range(count):
        own = os.path.join(folder, "vehicles", f"v{number:04}")
        os.makedirs(own)
        with open(os.path.join(own, "car.vhc"), "w", newline="") as file:
            file.write(vehicle(number))
        for name in SOUNDS:
            open(os.path.join(own, name + ".wav"), "w").close()
        os.makedirs(os.path.join(folder, "cars"), exist_ok=True)
        with zipfile.ZipFile(os.path.join(folder, "cars", f"c{number:04}.zip"), "w",
                             zipfile.ZIP_DEFLATED) as archive:
            archive.writestr("car.vhc", vehicle(number))
            for index, name in enumerate(SOUNDS):
                archive.writestr(name + ".wav", sounds[(number * 5 + index * 3) % len(sounds)])


def seconds(run):
    start = time.monotonic()
    run()
    return time.monotonic() - start


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--count", type=int, default=1000)
    options.add_argument("--rounds", type=int, default=5)
    options.add_argument("--brief", action="store_true")
    given = options.parse_args()
    if given.brief:
        given.count, given.rounds = 20, 1

    with tempfile.TemporaryDirectory(prefix="bench-check-") as folder:
        make(folder, given.count)
        archives = os.path.join(folder, "cars")

        def check(what):
            said = subprocess.run([CHECK, "--", what], capture_output=True, text=True, check=False)
            if said.returncode != 0:
                sys.exit(said.stdout[:2000] + said.stderr)

        def unzip():
            # One process for all, as sk2check is one: the pattern is unzip's own.
            subprocess.run(["unzip", "-tqq", os.path.join(archives, "*.zip")], check=True,
                           stdout=subprocess.DEVNULL)

        times = {"packages": [], "unzip -t": [], "vehicles": []}
        for _ in range(given.rounds):
            times["packages"].append(seconds(lambda: check(archives)))
            times["unzip -t"].append(seconds(unzip))
            times["vehicles"].append(seconds(lambda: check(os.path.join(folder, "vehicles"))))

    median = {name: statistics.median(each) for name, each in times.items()}
    for name, value in median.items():
        print(f"{given.count} {name}: {value:.3f} s")
    print(f"sk2check / unzip -t on the packages: {median['packages'] / median['unzip -t']:.2f}")


main()
