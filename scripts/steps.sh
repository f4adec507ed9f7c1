# Sourced by test and .ci/run: steps that say how long they took, and what to do when one fails.

# Runs a command as the step of that name, and ends the run if it fails.
step() {
  local name=$1 began=$SECONDS
  shift
  "$@" || fail_step "$name" "$((SECONDS - began))" "$@"
  printf '%6d s  %s\n' "$((SECONDS - began))" "$name"
}

# Last of all come the step, its tests, and the command that runs them again.
fail_step() {
  printf '\nFailed after %d s: %s\n' "$2" "$1"
  shift 2
  case $1 in
    run_tests) scripts/failed-tests "build/$2" ;;
    *) echo "Again:    $*" ;;
  esac
  exit 1
}

# The tests of a preset; further words go to ctest.
run_tests() {
  local preset=$1
  shift
  ctest --preset "$preset" -j "$(nproc)" --output-junit results.xml "$@" >"build/$preset/tests.log" 2>&1 ||
    { cat "build/$preset/tests.log"; return 1; }
  grep ' tests passed' "build/$preset/tests.log"
}
