# Running suites of tests and adding up what came of them. Sourced, not run.

background=()

# Begins with nothing counted. A file keeps the counts, so that suites may run side by side.
begin_suites() {
  mkdir -p out/logs
  counts=out/logs/counts
  : >"$counts"
}

# count NAME PASSED FAILED [SKIPPED]
count() {
  printf '%d %d %d %s\n' "$2" "$3" "${4:-0}" "$1" >>"$counts"
}

# in_background SUITE...: runs the suite beside those that follow, in a process group of its own.
in_background() {
  set -m
  "$@" &
  background+=($!)
  set +m
}

# Waits for the suites in the background. One that was cut short has failed.
wait_for_background() {
  local process
  for process in "${background[@]}"; do
    wait "$process" || count "a suite in the background that was cut short" 0 1
  done
  background=()
}

# Ends the suites in the background, with all that they have started, and waits until they have ended.
end_background() {
  local process
  for process in "${background[@]}"; do kill -- "-$process" 2>/dev/null || true; done
  for process in "${background[@]}"; do wait "$process" 2>/dev/null || true; done
  background=()
}

log_of() {
  mkdir -p out/logs
  echo "out/logs/$(echo "$1" | tr -cs 'a-zA-Z0-9\n' '-').log"
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
  gtest_run "$1" "$1" "${@:2}"
}

# gtest_share NAME NUMBER COUNT COMMAND...: the same for one of COUNT shares of the program's tests,
# numbered from 1. The shares may run side by side; each is counted, and the sum is told.
gtest_share() {
  GTEST_TOTAL_SHARDS=$3 GTEST_SHARD_INDEX=$(($2 - 1)) gtest_run "$1" "$1, $2 of $3" "${@:4}"
}

# gtest_run SUITE NAME COMMAND...: what is told while it runs, and its log, bear the name; it is
# counted in the suite.
gtest_run() {
  local suite=$1 name=$2 log report status=0 all=0 bad=0 left_out=0 passes
  shift 2
  log=$(log_of "$name")
  report=${log%.log}.xml
  rm -f "$report"
  echo "Running $name"
  # Much longer than any takes: a program that hangs is a failure, not the end of all tests.
  # In the foreground, so that Ctrl+C, or the end of the background, reaches it.
  timeout --foreground 1800 "$@" "--gtest_output=xml:$report" >"$log" 2>&1 || status=$?
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
  count "$suite" $((passes > 0 ? passes : 0)) "$bad" "$left_out"
}

# programs_in FOLDER PATTERN: puts the programs there into the array programs. None is a failure.
programs_in() {
  mapfile -t programs < <(find "$1" -maxdepth 1 -type f -executable -name "$2" | sort)
  [ ${#programs[@]} -gt 0 ] || count "$1/$2: no such program" 0 1
}

# fuzz_suites FOLDER: one test for each fuzz target there: a short run over its seeds and what it
# makes of them.
fuzz_suites() {
  local programs program name
  programs_in "$1" 'fuzz-*'
  for program in "${programs[@]}"; do
    name=$(basename "$program")
    # What it finds goes into the first folder, and is not used again.
    rm -rf "out/found/$name"
    mkdir -p "out/found/$name"
    check_suite "$name" "$program" -runs=20000 -max_total_time=20 \
      "-artifact_prefix=out/logs/$name-" "out/found/$name" "fuzz/seeds/${name#fuzz-}"
  done
}

# bench_suites FOLDER: that each benchmark there runs; its figures mean nothing on a busy machine.
bench_suites() {
  local programs program
  programs_in "$1" 'bench-*'
  for program in "${programs[@]}"; do check_suite "$(basename "$program")" "$program" --brief; done
}

# Prints the counts once every suite has ended, those of a suite's shares as one, and last the sum of
# all. Fails if any test did.
report_suites() {
  wait_for_background
  echo
  awk -v seconds="$SECONDS" '
    {
      name = $0; sub(/^[0-9]+ [0-9]+ [0-9]+ /, "", name)
      if (!(name in suite)) names[++suites] = name
      suite[name]
      passes[name] += $1; failures[name] += $2; skips[name] += $3
      passed += $1; failed += $2; skipped += $3
    }
    END {
      for (i = 1; i <= suites; i++) {
        name = names[i]
        printf "%6d passed %4d failed %4d skipped  %s\n", passes[name], failures[name], skips[name], name
      }
      printf "\n%d passed, %d failed, %d skipped, in %d min %02d s\n", passed, failed, skipped,
        seconds / 60, seconds % 60
      exit failed > 0 || passed == 0
    }' "$counts"
}
