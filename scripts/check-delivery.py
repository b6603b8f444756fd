#!/usr/bin/env python3
"""Looks at what a release consists of, as the Windows build has made it.

    check-delivery.py FOLDER    the folder of the build, such as out/windows
"""
import hashlib
import pathlib
import re
import struct
import subprocess
import sys
import unittest
import zipfile

PROJECT = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True


def bytes_in(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def headers_of(program):
    """Of an executable of 64 bits: where its headers are, and its sections by their addresses."""
    start, = struct.unpack_from("<I", program, 0x3C)
    assert program[start:start + 4] == b"PE\0\0"
    sections, = struct.unpack_from("<H", program, start + 6)
    table = start + 24 + struct.unpack_from("<H", program, start + 20)[0]
    return start, [struct.unpack_from("<IIII", program, table + 40 * i + 8) for i in range(sections)]


def stamps_of(program):
    """The times at which an executable was linked: in its header, and where it has exports, there."""
    start, sections = headers_of(program)
    stamps = [struct.unpack_from("<I", program, start + 8)[0]]
    exports, size = struct.unpack_from("<II", program, start + 24 + 112)
    for _, address, length, place in sections:
        if size and address <= exports < address + length:
            stamps.append(struct.unpack_from("<I", program, place + exports - address + 4)[0])
    return stamps


class Delivery(unittest.TestCase):
    def setUp(self):
        self.pack = bytes_in(BUILD / "pack")
        self.programs = {name: data for folder in ("pack", "tools")
                         for name, data in bytes_in(BUILD / folder).items()
                         if name.endswith((".exe", ".dll"))}
        self.delivery = bytes_in(BUILD / "delivery")

    def archive(self, pattern):
        names = [name for name in self.delivery if re.fullmatch(pattern, name)]
        self.assertEqual(len(names), 1, pattern)
        archive = zipfile.ZipFile(BUILD / "delivery" / names[0])
        self.addCleanup(archive.close)
        self.assertIsNone(archive.testzip())
        return archive

    def assert_holds(self, archive, top, files):
        entries = archive.infolist()
        self.assertEqual([entry.filename for entry in entries], [f"{top}/{name}" for name in sorted(files)])
        self.assertEqual(len({entry.date_time for entry in entries}), 1)
        self.assertEqual(entries[0].date_time[3:], (0, 0, 0))
        for name, data in files.items():
            self.assertEqual(archive.read(f"{top}/{name}"), data, name)

    def test_programs_do_not_tell_when_they_were_linked(self):
        self.assertIn("sk2pack.exe", self.programs)
        self.assertIn("orec.dll", self.programs)
        for name, data in self.programs.items():
            self.assertEqual(set(stamps_of(data)), {0}, name)

    def test_no_path_of_the_machine_that_builds_is_in_them(self):
        for name, data in self.programs.items():
            for path in (PROJECT, BUILD.resolve(), pathlib.Path.home() / "."):
                if len(path.parts) > 2:
                    self.assertNotIn(str(path).encode(), data, name)

    def test_the_licences_come_with_the_program(self):
        self.assertEqual(self.pack["LICENSE.txt"], (PROJECT / "LICENSE").read_bytes())
        licences = bytes_in(PROJECT / "licences")
        self.assertGreater(len(licences), 5)
        for name, data in licences.items():
            self.assertEqual(self.pack[f"licences/{name}"], data, name)
        about = licences.pop("about.txt").decode()
        for name in licences:
            self.assertIn(name, about)
        self.assertEqual({name for name in self.pack if name.startswith("licences/")},
                         {f"licences/{name}" for name in licences} | {"licences/about.txt"})

    def test_the_help_file_holds_every_page(self):
        listing = subprocess.run(["chmls", "list", BUILD / "pack/sk2pack.chm"], check=True,
                                 capture_output=True, text=True).stdout
        # What is named by "#", "$" or ":" is of the format itself.
        listed = {line.split()[3][1:] for line in listing.splitlines()
                  if len(line.split()) == 4 and re.match("/[a-z]", line.split()[3])}
        pages = {path.name for path in (PROJECT / "help").glob("*.html")}
        self.assertGreater(len(pages), 20)
        self.assertEqual(listed, pages | {"contents.hhc", "index.hhk"})

    def test_the_help_file_does_not_tell_when_it_was_compiled(self):
        self.assertEqual(self.pack["sk2pack.chm"][0x10:0x14], bytes(4))

    def test_the_help_is_there_as_plain_pages(self):
        pages = {path.name: path.read_bytes() for path in (PROJECT / "help").glob("*.html")}
        self.assertEqual(bytes_in(BUILD / "help"), pages)
        self.assert_holds(self.archive(r"sk2pack-[0-9.]+-help\.zip"), "sk2pack-help", pages)

    def test_the_portable_copy_is_the_program_folder(self):
        archive = self.archive(r"sk2pack-[0-9.]+-portable\.zip")
        users = re.compile(r"^(sk2pack\.(cfg|lng)|iplist\.dat|.*\.(tmp|log))$")
        files = {name: data for name, data in self.pack.items() if not users.match(name)}
        self.assertTrue({"sk2pack.exe", "orec.dll", "sk2pack.chm", "languages/template.lng"} <= set(files))
        self.assert_holds(archive, "sk2pack", files)

    def test_the_tools_are_there_if_they_are_built(self):
        tools = bytes_in(BUILD / "tools")
        if not tools:
            self.skipTest("no tools were built")
        archive = self.archive(r"sk2tools-[0-9.]+\.zip")
        files = {name: data for name, data in tools.items() if name.endswith(".exe")}
        files.update({name: data for name, data in self.pack.items()
                      if re.match("LICENSE|licences/", name)})
        self.assert_holds(archive, "sk2tools", files)

    def test_the_installer_is_there_if_it_is_built(self):
        installer = BUILD / "sk2up.exe"
        if not installer.exists():
            self.skipTest("no installer was built")
        self.assertEqual(self.delivery["sk2up.exe"], installer.read_bytes())

    def test_the_sums_are_those_of_all_files(self):
        lines = self.delivery.pop("SHA256SUMS").decode().splitlines()
        self.assertEqual(lines, [f"{hashlib.sha256(data).hexdigest()}  {name}"
                                 for name, data in sorted(self.delivery.items())])


if len(sys.argv) != 2:
    sys.exit(__doc__)
BUILD = pathlib.Path(sys.argv.pop())
unittest.main(verbosity=2)
