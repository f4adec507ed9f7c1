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

# The tests in a build folder; further words go to ctest.
run_tests() {
  local folder=build/$1
  shift
  ctest --test-dir "$folder" -j "$(nproc)" --no-tests=error --output-on-failure --output-junit results.xml \
    "$@" >"$folder/tests.log" 2>&1 || { cat "$folder/tests.log"; return 1; }
  grep ' tests passed' "$folder/tests.log"
}
