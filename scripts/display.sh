# Sourced by the scripts that try a package: a display of its own, and a person at it.

PATIENCE=60 # seconds; the first program on a fresh system takes a while
SCREEN=

# Starts a display that ends with the script; PICTURES is the folder for what was seen.
use_display() {
  local number
  PICTURES=$1
  number=$(mktemp)
  Xvfb -displayfd 3 -ac -nolisten tcp -screen 0 1600x1200x24 3>"$number" 2>/dev/null &
  SCREEN=$!
  while [ ! -s "$number" ]; do sleep 0.1; done
  export DISPLAY
  DISPLAY=:$(cat "$number")
  rm "$number"
}

stop_display() {
  [ -z "$SCREEN" ] || kill "$SCREEN"
}

picture() {
  import -window root "$PICTURES/$1.png"
}

fail() {
  picture failed
  echo "$1 The screen of that moment is $PICTURES/failed.png" >&2
  exit 1
}

# Waits until the command succeeds.
await() {
  local what=$1 end=$((SECONDS + PATIENCE))
  shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || fail "$what didn't come."
    sleep 0.2
  done
}

# Gives the keys to the window of that title, once it is there.
keys_to() {
  local title=$1 window
  shift
  await "The window \"$title\"" xdotool search --onlyvisible --name "^$title\$"
  window=$(xdotool search --onlyvisible --name "^$title\$" | tail -n 1)
  xdotool windowfocus --sync "$window" sleep 0.5 "$@"
}

is_gone() {
  ! xdotool search --onlyvisible --name "^$1\$"
}

# Gives the keys to the window of that title, and waits until they have closed it.
close_with() {
  keys_to "$@"
  await "The end of the window \"$1\"" is_gone "$1"
}
