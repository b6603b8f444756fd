#!/usr/bin/env python3
"""Puts together what a release consists of. The same files give the same bytes."""
import argparse
import hashlib
import pathlib
import re
import shutil
import zipfile

# What a pack leaves beside itself where it was tried; its users keep theirs.
NOT_DELIVERED = re.compile(
    r"\.(cfg|tmp|log)$|^[^/]*\.lng$|^iplist\.dat$|^orv|^sk2up\.|^uninstall\.exe$", re.IGNORECASE)


def files_of(folder):
    """The files to be delivered, by their names from the folder, in an order that is always the same."""
    files = {path.relative_to(folder).as_posix(): path for path in folder.rglob("*") if path.is_file()}
    return {name: files[name] for name in sorted(files) if not NOT_DELIVERED.search(name)}


def pack(archive, top, files, date):
    """Puts files into an archive, below one folder, so that unpacking it litters nothing."""
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as target:
        for name, path in files.items():
            entry = zipfile.ZipInfo(f"{top}/{name}", date)
            entry.compress_type = zipfile.ZIP_DEFLATED
            # Which system made the archive is not to be seen in it.
            entry.create_system = 3
            entry.external_attr = 0o100644 << 16
            target.writestr(entry, path.read_bytes())


def main():
    options = argparse.ArgumentParser(description=__doc__)
    options.add_argument("--pack", type=pathlib.Path, required=True, help="the program folder")
    options.add_argument("--help-pages", type=pathlib.Path, required=True, help="the pages of the help")
    options.add_argument("--installer", type=pathlib.Path)
    options.add_argument("--tool", type=pathlib.Path, action="append", default=[])
    options.add_argument("--version", required=True)
    options.add_argument("--date", required=True, help="of the files in the archives: YYYY-MM-DD")
    options.add_argument("target", type=pathlib.Path, help="the folder, made anew")
    given = options.parse_args()
    date = (*map(int, given.date.split("-")), 0, 0, 0)

    shutil.rmtree(given.target, ignore_errors=True)
    given.target.mkdir(parents=True)
    program = files_of(given.pack)
    name = f"sk2pack-{given.version}"
    pack(given.target / f"{name}-portable.zip", "sk2pack", program, date)
    pack(given.target / f"{name}-help.zip", "sk2pack-help", files_of(given.help_pages), date)
    if given.tool:
        tools = {tool.name: tool for tool in given.tool}
        # They are made of the same libraries.
        tools.update({name: path for name, path in program.items() if re.match("LICENSE|licences/", name)})
        pack(given.target / f"sk2tools-{given.version}.zip", "sk2tools", dict(sorted(tools.items())), date)
    if given.installer:
        # Under the name by which packs fetch it.
        shutil.copyfile(given.installer, given.target / "sk2up.exe")
    sums = [f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}\n"
            for path in sorted(given.target.iterdir())]
    (given.target / "SHA256SUMS").write_bytes("".join(sums).encode())


main()
