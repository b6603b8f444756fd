# Running suites of tests and adding up what came of them. Sourced, not run.

suite_lines=()
passed=0
failed=0
skipped=0

# count NAME PASSED FAILED [SKIPPED]
count() {
  suite_lines+=("$(printf '%6d passed %4d failed %4d skipped  %s' "$2" "$3" "${4:-0}" "$1")")
  passed=$((passed + $2))
  failed=$((failed + $3))
  skipped=$((skipped + ${4:-0}))
}

log_of() {
  mkdir -p out/logs
  echo "out/logs/$(echo "$1" | tr -c 'a-zA-Z0-9\n' '-').log"
}

# check_suite NAME COMMAND...: one test, which passes if the command succeeds.
check_suite() {
  local name=$1 log
  shift
  log=$(log_of "$name")
  echo "Running $name"
  if "$@" >"$log" 2>&1; then
    count "$name" 1 0
  else
    tail -n 40 "$log"
    count "$name" 0 1
  fi
}

# lint_suite NAME TOOL COMMAND...: a check_suite for the version of the tool that the code keeps to.
# Another version wants other things of the same code: that is told, not judged.
lint_suite() {
  local name=$1 tool=$2 version
  shift 2
  version=$("$tool" --version | grep -o 'version [0-9]*' | head -n 1 || true)
  if [ "$version" = "version 14" ]; then
    check_suite "$name" "$@"
  else
    echo "Leaving out $name: it takes $tool 14, and here is $version"
    count "$name" 0 0 1
  fi
}

# build_suite PRESET [TARGET...]: one test, which passes if it builds without a warning.
build_suite() {
  if build "$@"; then count "the $1 build" 1 0; else count "the $1 build" 0 1; fi
}

# gtest_suite NAME COMMAND...: a GoogleTest program. One that ends before it has reported, or fails
# without a failed test, counts as a failure of its own. A test that this machine cannot run says so
# by skipping itself, and is named.
gtest_suite() {
  local name=$1 log report status=0 all=0 bad=0 left_out=0 passes
  shift
  log=$(log_of "$name")
  report=${log%.log}.xml
  rm -f "$report"
  echo "Running $name"
  # Much longer than any takes: a program that hangs is a failure, not the end of all tests.
  # In the foreground, so that Ctrl+C reaches it.
  timeout --foreground 900 "$@" "--gtest_output=xml:$report" >"$log" 2>&1 || status=$?
  if [ -s "$report" ]; then
    all=$(sed -n 's/^<testsuites tests="\([0-9]*\)".*/\1/p' "$report")
    bad=$(sed -n 's/^<testsuites .*failures="\([0-9]*\)".*/\1/p' "$report")
    left_out=$(grep -c 'result="skipped"' "$report" || true)
  fi
  [ "$status" = 0 ] || [ "$bad" -gt 0 ] || bad=1
  # A suite that has lost its tests tests nothing.
  [ "$all" -gt "$left_out" ] || bad=1
  if [ "$left_out" -gt 0 ]; then grep '^\[  SKIPPED \] .* (' "$log" || true; fi
  if [ "$bad" -gt 0 ]; then
    { grep -v -E '^\[( RUN |       OK )' "$log" || true; } | tail -n 150
    echo "All of its output is in $log"
  fi
  passes=$((all - bad - left_out))
  count "$name" $((passes > 0 ? passes : 0)) "$bad" "$left_out"
}

# programs_in FOLDER PATTERN: puts the programs there into the array programs. None is a failure.
programs_in() {
  mapfile -t programs < <(find "$1" -maxdepth 1 -type f -executable -name "$2" | sort)
  [ ${#programs[@]} -gt 0 ] || count "$1/$2: no such program" 0 1
}

# fuzz_suites FOLDER: one test for each fuzz target there: a short run over its seeds and what it
# makes of them. As many run at a time as there are processors.
fuzz_suites() {
  local programs program name processes=() i
  programs_in "$1" 'fuzz-*'
  for program in "${programs[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do wait -n || true; done
    name=$(basename "$program")
    echo "Running $name"
    # What it finds goes into the first folder, and is not used again.
    rm -rf "out/found/$name"
    mkdir -p "out/found/$name"
    "$program" -runs=20000 -max_total_time=20 "-artifact_prefix=out/logs/$name-" \
      "out/found/$name" "fuzz/seeds/${name#fuzz-}" >"$(log_of "$name")" 2>&1 </dev/null &
    processes+=($!)
  done
  for i in "${!programs[@]}"; do
    name=$(basename "${programs[i]}")
    if wait "${processes[i]}"; then
      count "$name" 1 0
    else
      tail -n 40 "$(log_of "$name")"
      count "$name" 0 1
    fi
  done
}

# bench_suites FOLDER: that each benchmark there runs; its figures mean nothing on a busy machine.
bench_suites() {
  local programs program
  programs_in "$1" 'bench-*'
  for program in "${programs[@]}"; do check_suite "$(basename "$program")" "$program" --brief; done
}

# Prints all counts, and last their sum. Fails if any test did.
report_suites() {
  echo
  printf '%s\n' "${suite_lines[@]}"
  echo
  printf '%s passed, %s failed, %s skipped, in %d min %02d s\n' "$passed" "$failed" "$skipped" \
    $((SECONDS / 60)) $((SECONDS % 60))
  [ "$failed" = 0 ]
}
