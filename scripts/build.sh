# Sourced by run, test and the scripts that build: building a folder or a preset, and the links under
# which the programs are found.

# Builds the targets in a configured folder below build, everything if none is named. Shows its progress
# to a person only; what fails is always shown.
build_folder() {
  local folder=$1
  shift
  local quiet=()
  [ -t 1 ] || quiet=(-- --quiet)
  cmake --build "build/$folder" ${1:+--target "$@"} "${quiet[@]}"
}

# The same in the folder of a preset, which is configured if it has to be.
build_preset() {
  [ "build/$1/build.ninja" -nt CMakePresets.json ] || cmake --preset "$1" --log-level=WARNING >/dev/null
  build_folder "$@"
}

# build/wheelwright and build/wheelwright-replay are the programs of that preset.
link_programs() {
  ln -sfn "$1/wheelwright" build/wheelwright
  ln -sfn "$1/wheelwright-replay" build/wheelwright-replay
}
