# Sourced by test and .ci/run: steps that say how long they took, and what to do when one fails.

# Runs a command as the step of that name, and ends the run if it fails.
step() {
  local name=$1 began=$SECONDS
  shift
  "$@" || fail_step "$name" "$((SECONDS - began))" "$@"
  printf '%6d s  %s\n' "$((SECONDS - began))" "$name"
}

# Runs steps of one core each side by side; the words are the name and the command of each. Waits for all, then
# shows what they said, those that failed last, and ends the run if there are any.
side_by_side() {
  local folder job said=() failed=()
  local -A logs
  folder=$(mktemp -d)
  while [ $# -gt 0 ]; do
    step "$1" $2 >"$folder/$#" 2>&1 &
    logs[$!]=$folder/$#
    shift 2
  done
  for job in "${!logs[@]}"; do
    if wait "$job"; then said+=("${logs[$job]}"); else failed+=("${logs[$job]}"); fi
  done
  cat "${said[@]}" "${failed[@]}" </dev/null
  rm -r "$folder"
  [ ${#failed[@]} -eq 0 ] || exit 1
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
