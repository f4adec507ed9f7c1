# Sourced by run, test and the scripts that build: building a preset, and the links under which its
# programs are found.

# Builds the targets of a preset that is configured, everything if none is named. Shows its progress to
# a person only; what fails is always shown.
build_preset() {
  local preset=$1
  shift
  local quiet=()
  [ -t 1 ] || quiet=(-- --quiet)
  cmake --build "build/$preset" ${1:+--target "$@"} "${quiet[@]}"
}

# build/wheelwright and build/wheelwright-replay are the programs of the release build.
link_programs() {
  ln -sfn release/wheelwright build/wheelwright
  ln -sfn release/wheelwright-replay build/wheelwright-replay
}
