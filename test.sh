#!/usr/bin/env bash
# Builds everything and runs every test there is. The last line tells how many passed, failed and
# could not be run here, and how long it took; the exit status is 0 if none failed.
set -euo pipefail
cd "$(dirname "$0")"
exec </dev/null
. scripts/packages.sh
. scripts/build.sh
. scripts/machine.sh
. scripts/suites.sh

trap end_background EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_packages "${pack_packages[@]}" "${test_packages[@]}" "${sound_packages[@]}"

begin_suites
build_suite host sk2tests posix-contracts check-corpus
build_suite tools
build_suite windows
build_suite fuzz
build_suite bench
in_background fuzz_suites out/fuzz/fuzz
gtest_suite "tests on the simulated machine" out/host/tests/sk2tests
gtest_suite "contracts on the machine of the console programs" out/host/tests/posix-contracts
wait_for_background
bench_suites out/bench/bench
check_suite bench-check bench/check/check-folder.py --brief
check_suite "many players at once" server/load-test.sh --brief

lint_suites() {
  lint_suite "code layout" clang-format cmake --build --preset host --target check-format
  lint_suite "what clang-tidy finds" clang-tidy \
    nice -n 19 cmake --build --preset host --target check-tidy
  lint_suite "what clang-tidy finds in the real machine" clang-tidy \
    nice -n 19 cmake --build --preset windows --target check-tidy
}

# The tests on the real machine mostly wait for windows, so that two machines, each with its own
# keyboard and screen, run them in half the time.
machines=2

# In a shell of its own, which turns the first machine off again.
prepare_machines() (
  trap leave_machine EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM
  enter_machine out/e2e/machine-1 && start_display && start_windows || exit 1
  for number in $(seq 2 "$machines"); do
    copy_windows "out/e2e/machine-$number" || exit 1
  done
)

bring_up_machine() {
  enter_machine "out/e2e/machine-$1" && start_display && start_sound && record_speakers &&
    start_web &&
    start_windows && use_virtual_desktop && use_own_web
}

# machine_suites NUMBER: what one machine has to run. In the background, where it has a shell of its
# own, so that it also ends what it has started.
machine_suites() {
  trap leave_machine EXIT
  trap 'exit 143' TERM
  if ! bring_up_machine "$1"; then
    count "the machine to run the program on" 0 1
    return
  fi
  gtest_share "contracts on the real machine" "$1" "$machines" \
    wine out/windows/tests/contract-tests.exe "--speakers=out/e2e/machine-$1/speakers.raw"
  gtest_share "the shipped program" "$1" "$machines" \
    wine out/windows/e2e/e2e-tests.exe --pack=out/windows/pack --versions=out/windows/versions \
    --demo=demo --pictures=out/e2e/pictures "--speakers=out/e2e/machine-$1/speakers.raw" \
    "--web=out/e2e/machine-$1/web" --archives=out/e2e/archives
  if [ "$1" = 1 ]; then
    check_suite "sk2check natively and on Windows" scripts/same-verdicts.sh
    check_suite bench-start wine out/windows/bench/start/bench-start.exe --brief \
      --pack=out/windows/pack --bare=out/windows/bench/start/barewindow.exe
    check_suite bench-lists wine out/windows/bench/lists/bench-lists.exe --brief
  fi
}

# On what the machines leave of the processors.
in_background lint_suites
if prepare_machines; then
  rm -rf out/e2e/pictures out/e2e/archives
  for number in $(seq "$machines"); do in_background machine_suites "$number"; done
  wait_for_background
  check_suite "what other programs unpack" scripts/check-archives.sh out/e2e/archives
else
  count "the machine to run the program on" 0 1
fi

report_suites
