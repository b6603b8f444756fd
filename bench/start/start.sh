#!/usr/bin/env bash
# How long the pack takes to open, beside a bare window, on a machine of its own.
#
#   bench/start/start.sh [--rounds=N] [--brief]
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/packages.sh
. scripts/build.sh
. scripts/machine.sh

trap leave_machine EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_packages "${pack_packages[@]}" "${sound_packages[@]}"
build windows sk2pack bench-start
enter_machine out/bench-machine
start_display
start_sound
start_windows
use_virtual_desktop
wine out/windows/bench/start/bench-start.exe --pack=out/windows/pack \
  --bare=out/windows/bench/start/barewindow.exe "$@"
