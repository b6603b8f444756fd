# The tour through the pack's main jobs. Sourced, not run; needs build.sh and machine.sh.

# Takes it on a machine of its own, out/tour, and tells of it. The pictures are out/tour/tour-*.png.
# The status is 0 if everything came out as it should.
take_tour() {
  local log=out/tour/tour.log
  enter_machine out/tour
  start_display && start_sound && record_speakers && start_windows && start_web || return 1
  use_virtual_desktop
  use_own_web
  rm -rf out/tour/pictures out/tour/tour-*.png
  echo "The pack shows its main jobs on the demo game"
  wine out/windows/e2e/tour.exe --pack=out/windows/pack --versions=out/windows/versions \
    --demo=demo --pictures=out/tour/pictures "--speakers=$machine_folder/speakers.raw" \
    --gtest_brief=1 </dev/null 2>/dev/null | tee "$log" | grep --line-buffered '^[0-9]' || true
  mv out/tour/pictures/tour-*.png out/tour/ 2>/dev/null || true
  if ! grep -q '\[  PASSED  \] 1 test' "$log"; then
    grep -v '^[0-9]' "$log" >&2
    return 1
  fi
  echo "The pictures are out/tour/tour-*.png"
}
