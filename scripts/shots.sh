# Sourced by the scripts that make pictures of the windows: the replay that plays the sessions, and
# the folder that they work in.

# Sets REPLAY: what WHEELWRIGHT_REPLAY names, or else the replay of the release build, built now.
find_replay() {
  REPLAY=${WHEELWRIGHT_REPLAY:-build/wheelwright-replay}
  if [ -n "${WHEELWRIGHT_REPLAY:-}" ]; then return 0; fi
  build_preset release wheelwright-replay
  link_programs release
}

# A folder with all that the sessions need: the files beside the program, and the samples to work on.
prepare_folder() {
  local folder=$1
  mkdir -p "$folder/app/gfx" "$folder/samples"
  cp language/*.lng "$folder/app"
  cp gfx/*.jpg "$folder/app/gfx"
  cp samples/*.cfg samples/*.ide samples/*.dat "$folder/samples"
}
