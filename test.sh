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

trap 'end_background; leave_machine' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_packages "${pack_packages[@]}" "${test_packages[@]}" "${sound_packages[@]}"

begin_suites
build_suite host sk2tests
build_suite windows
build_suite fuzz
build_suite bench
in_background fuzz_suites out/fuzz/fuzz
gtest_suite "tests on the simulated machine" out/host/tests/sk2tests
wait_for_background
bench_suites out/bench/bench

lint_suites() {
  lint_suite "code layout" clang-format cmake --build --preset host --target check-format
  lint_suite "what clang-tidy finds" clang-tidy \
    nice -n 19 cmake --build --preset host --target check-tidy
  lint_suite "what clang-tidy finds in the real machine" clang-tidy \
    nice -n 19 cmake --build --preset windows --target check-tidy
}

bring_up_machine() {
  enter_machine out/e2e && start_display && start_sound && record_speakers && start_web &&
    start_windows && use_virtual_desktop && use_own_web
}

# The tests on the real machine mostly wait for windows; this takes what they leave of the processors.
in_background lint_suites
if bring_up_machine; then
  gtest_suite "contracts on the real machine" wine out/windows/tests/contract-tests.exe \
    --speakers=out/e2e/speakers.raw
  check_suite bench-lists wine out/windows/bench/lists/bench-lists.exe --brief
  rm -rf out/e2e/pictures
  gtest_suite "the shipped program" wine out/windows/e2e/e2e-tests.exe --pack=out/windows/pack \
    --versions=out/windows/versions --demo=demo --pictures=out/e2e/pictures \
    --speakers=out/e2e/speakers.raw
else
  count "the machine to run the program on" 0 1
fi

report_suites
