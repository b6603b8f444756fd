#!/usr/bin/env bash
# Builds the pack and opens it on a copy of the demo game.
#
#   ./run.sh          until it is closed; without a display or sound hardware, on virtual ones
#   ./run.sh --once   always on a virtual display; ends after a picture of the main window
#   ./run.sh --tour   the pack does its main jobs by itself, on a virtual display and with a virtual
#                     microphone; tells what came of each, and leaves numbered pictures in out/tour
#
# The copy of the game is out/run/Skidrun2, the program's folder out/run/SK2Pack; both are kept. All
# that the pack fetches comes from a small web site of its own, for which no internet is needed.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/build.sh
. scripts/machine.sh
. scripts/game.sh

once=
tour=
case "${1:-}" in
  "") ;;
  --once) once=1 ;;
  --tour) tour=1 ;;
  *)
    echo "usage: ./run.sh [--once | --tour]" >&2
    exit 2
    ;;
esac

trap leave_machine EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_packages "${pack_packages[@]}"
if [ -n "$tour" ]; then
  install_packages "${sound_packages[@]}"
  build windows sk2pack tour
  build tools sk2publish
  . scripts/tour.sh
  take_tour
  exit
fi
build windows sk2pack windowpicture
build tools sk2publish
enter_machine out/run

start_virtual_sound() {
  install_packages "${sound_packages[@]}"
  start_sound
}

is_virtual=$once
if [ -n "$once" ]; then
  echo "Using a virtual display, virtual speakers and a virtual microphone"
  start_display
  start_virtual_sound
else
  if ! has_display; then
    echo "There is no display here: using a virtual one"
    is_virtual=1
    start_display
  fi
  if ! has_sound; then
    echo "There is no sound hardware here: using virtual speakers and a virtual microphone"
    start_virtual_sound
  fi
fi

start_windows
start_web
if [ -n "$is_virtual" ]; then use_virtual_desktop; else use_no_desktop; fi
if [ ! -d out/run/Skidrun2 ]; then
  echo "Copying the demo game to out/run/Skidrun2"
  rm -rf out/run/Skidrun2.part
  cp -r demo out/run/Skidrun2.part
  mv out/run/Skidrun2.part out/run/Skidrun2
fi
mkdir -p out/run/SK2Pack "$WINEPREFIX/drive_c/Games"
cp -r out/windows/pack/. out/run/SK2Pack/
ln -sfn "$machine_folder/Skidrun2" "$WINEPREFIX/drive_c/Games/Skidrun2"
ln -sfn "$machine_folder/SK2Pack" "$WINEPREFIX/drive_c/Program Files/SK2Pack"
register_game 'C:\Games\Skidrun2'
use_own_web
echo "The maker's web site is served at http://127.0.0.1:$web_port/, and the pack is led there"

echo "Opening the pack"
start pack wine 'C:\Program Files\SK2Pack\sk2pack.exe'
pack=${machine_processes[-1]}
if [ -n "$is_virtual" ]; then
  picture=out/run/main-window.png
  wine out/windows/e2e/windowpicture.exe "Skidrun2 Utility Pack" "$picture" </dev/null
  echo "The picture of the main window is $picture"
fi
if [ -z "$once" ]; then
  if [ -n "$is_virtual" ]; then echo "The pack stays open until this is interrupted (Ctrl+C)"; fi
  wait "$pack"
fi
