# Building. Sourced, not run; the current folder is the project's.

# build PRESET [TARGET...]: configures and builds, and shows what went wrong if it does.
build() {
  local preset=$1 log
  shift
  log=out/logs/build-$preset.log
  mkdir -p out/logs
  echo "Building $preset"
  if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } \
    >"$log" 2>&1 </dev/null; then
    grep -E -A 5 'error|Error|FAILED' "$log" | head -n 60 >&2 || tail -n 40 "$log" >&2
    echo "The $preset build failed; all of its output is in $log" >&2
    return 1
  fi
}
