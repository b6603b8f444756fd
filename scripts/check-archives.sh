#!/usr/bin/env bash
# Lets programs of other makers unpack what the pack has packed, and compares what comes out.
#
#   check-archives.sh FOLDER
#
# FOLDER  holds archives NAME.zip, and beside each a folder NAME with what is to come out of it.
set -euo pipefail

folder=$1
unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT

# compare NAME PROGRAM COMMAND...: the command has unpacked the archive into a folder PROGRAM.
compare() {
  local name=$1 target=$unpacked/$1-$2
  mkdir "$target"
  "${@:3}"
  diff -r "$folder/$name" "$target"
  echo "$2 unpacks $name.zip"
}

archives=("$folder"/*.zip)
[ -e "${archives[0]}" ] || { echo "There are no archives in $folder." >&2; exit 1; }
for archive in "${archives[@]}"; do
  name=$(basename "$archive" .zip)
  compare "$name" unzip unzip -q "$archive" -d "$unpacked/$name-unzip"
  compare "$name" 7z 7z x -bd "$archive" "-o$unpacked/$name-7z"
  compare "$name" bsdtar bsdtar -xf "$archive" -C "$unpacked/$name-bsdtar"
done
