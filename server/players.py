#!/usr/bin/env python3
"""Lets many players fetch all that a site serves, at the same time, and compares every byte.

    players.py SITE PORT [PLAYERS [ROUNDS [OTHER]]]

SITE     the folder that sk2publish has made; what is served must be what is in it.
PORT     where it is served on this machine.
PLAYERS  how many there are at once, 200 unless given. Each has one connection, which it keeps for
         one round: all lists, the record of versions, and every archive that the lists name.
ROUNDS   how often each does that, 5 unless given.
OTHER    a second site, published from another state of the folder: each answer may also be what is
         in there. For a run during which the states are exchanged.

Prints what was measured. Exits with 1 if any answer was wrong.
"""
import asyncio
import pathlib
import resource
import sys
import time

KINDS = ("cars", "tracks", "langs")
GAME = "/orvane/games/sk2"
HOST = "www.orvane.example"


class Player:
    def __init__(self, sites, port):
        self.sites, self.port = sites, port
        self.times, self.bytes, self.wrong = [], 0, []

    async def fetch(self, reader, writer, path):
        """The status and the body of what stands at the path."""
        start = time.monotonic()
        address = path.replace("%", "%25").replace(" ", "%20").replace("&", "%26")
        writer.write(f"GET {address} HTTP/1.1\r\nHost: {HOST}\r\n\r\n".encode())
        head = (await reader.readuntil(b"\r\n\r\n")).decode("latin-1")
        status = int(head.split()[1])
        length = next(int(line.split(":")[1]) for line in head.split("\r\n")
                      if line.lower().startswith("content-length:"))
        body = await reader.readexactly(length)
        self.times.append(time.monotonic() - start)
        self.bytes += length
        return status, body

    def judge(self, path, status, body):
        expected = [site[path] for site in self.sites if path in site]
        if status == 200 and body in expected:
            return
        # What only one of two states has may have gone since the list was read.
        if status == 404 and len(expected) < len(self.sites):
            return
        self.wrong.append(f"{path}: status {status}, {len(body)} bytes")

    async def play(self, rounds):
        for _ in range(rounds):
            reader, writer = await asyncio.open_connection("127.0.0.1", self.port, limit=1 << 22)
            paths = ["/orvane/software/versions.dat"]
            for kind in KINDS:
                path = f"{GAME}/data/{kind}.lst"
                status, body = await self.fetch(reader, writer, path)
                self.judge(path, status, body)
                paths += [f"{GAME}/{kind}/{record.split(':', 1)[1]}"
                          for record in body.decode("latin-1").split("\n") if ":" in record]
            for path in paths:
                self.judge(path, *await self.fetch(reader, writer, path))
            writer.close()
            await writer.wait_closed()


def read_site(folder):
    current = (pathlib.Path(folder) / "current").resolve()
    return {"/" + path.relative_to(current).as_posix(): path.read_bytes()
            for path in current.rglob("*") if path.is_file()}


async def main(folder, port, count=200, rounds=5, other=None):
    sites = [read_site(folder)] + ([read_site(other)] if other else [])
    players = [Player(sites, int(port)) for _ in range(int(count))]
    start = time.monotonic()
    await asyncio.gather(*(player.play(int(rounds)) for player in players))
    seconds = time.monotonic() - start
    times = sorted(time for player in players for time in player.times)
    wrong = [what for player in players for what in player.wrong]
    megabytes = sum(player.bytes for player in players) / 1e6
    print(f"{count} players at once, {rounds} rounds each: {len(times)} answers, "
          f"{megabytes:.0f} MB, {len(wrong)} wrong")
    print(f"{seconds:.1f} s: {len(times) / seconds:.0f} answers and {megabytes / seconds:.0f} MB "
          "a second")
    print(f"an answer takes {1000 * times[len(times) // 2]:.1f} ms in the middle, "
          f"{1000 * times[len(times) * 99 // 100]:.1f} ms for 99 of 100, "
          f"{1000 * times[-1]:.1f} ms at most")
    for what in wrong[:20]:
        print(what, file=sys.stderr)
    return 1 if wrong else 0


if not 3 <= len(sys.argv) <= 6:
    sys.exit(__doc__)
soft, hard = resource.getrlimit(resource.RLIMIT_NOFILE)
resource.setrlimit(resource.RLIMIT_NOFILE, (min(hard, 4096), hard))
sys.exit(asyncio.run(main(*sys.argv[1:])))
