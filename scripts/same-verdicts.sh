#!/usr/bin/env bash
# Lets sk2check judge the same files natively and as the Windows program under Wine, in every format,
# and compares all that it says byte for byte. To be called where Wine is ready; what has been built
# is used.
set -euo pipefail
cd "$(dirname "$0")/.."

root=$PWD
work=out/check-corpus
files=$work/files
rm -rf "$work"
mkdir -p "$files"
out/host/tests/check-corpus "$files"
cp -r demo fuzz/seeds languages "$files"

# judge NAME COMMAND...: runs it in the folder of the files; what it says, and its exit status last,
# is in out/check-corpus/NAME.
judge() {
  local name=$1 status=0
  shift
  (cd "$files" && "$@") >"$work/$name" 2>"$work/$name.notes" || status=$?
  # Wine has notes of its own there.
  grep -E '^([0-9]+ files? checked|sk2check:)' "$work/$name.notes" >>"$work/$name" || true
  echo "exit status $status" >>"$work/$name"
}

compared=0
same() {
  local what=$1
  shift
  judge "$what-native" "$root/out/tools/sk2check" "$@"
  judge "$what-windows" wine "$root/out/windows/tools/sk2check.exe" "$@"
  if ! cmp "$work/$what-native" "$work/$what-windows"; then
    diff "$work/$what-native" "$work/$what-windows" | head -n 20
    exit 1
  fi
  compared=$((compared + 1))
}

same json --json .
same first --first --json .
same plain .
same github --format=github .
same language --language languages/good.lng tracks
same missing nowhere.trk tracks/t0001.trk demo/Skidrun.cfg
same options --what

# They have judged something: as many files as there are, good ones and bad ones.
judged=$(sed -n 's/.*"checked": \([0-9]*\).*/\1/p' "$work/json-native")
wanted=$(find "$files" \( -name '*.vhc' -o -name '*.trk' -o -name '*.zip' -o -name '*.lng' \
  -o -name highscore.cfg \) -type f | wc -l)
[ "$judged" = "$wanted" ] || { echo "judged $judged files of $wanted"; exit 1; }
grep -q '"code": 101' "$work/json-native" && grep -q '"faults": \[\]' "$work/json-native"
echo "$compared reports on $judged files are the same"
