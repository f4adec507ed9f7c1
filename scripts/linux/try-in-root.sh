#!/usr/bin/env bash
# What try-package does in the fresh system, as root and in a mount namespace that ends with it.
#
# usage: try-in-root.sh deb|archive BASE PACKAGE PICTURES
set -euo pipefail
source scripts/display.sh
source scripts/linux/root.sh
source scripts/unordered.sh
kind=$1 base=$2 package=$3 pictures=$4

TITLE='GTAViceCity PC-Version - Wheelwright'
HOME_INSIDE=/home/tester
TESTER=1000

root=$(mktemp -d)

end() {
  stop_display
  remove_root "$root"
}

# The files of the system, but for those that every installation changes.
files_inside() {
  (cd "$root" && find . \( -path ./proc -o -path ./dev -o -path ./tmp -o -path ./home \
    -o -path ./var/lib/dpkg -o -path ./var/log \) -prune -o -print | sort)
}

# A user with a file to edit, who has chosen English, and whose browser only notes what it is to show.
make_user() {
  local home=$root$HOME_INSIDE
  rm -rf "$home"
  mkdir -p "$home/.config/Wheelwright" "$home/bin"
  mkdir -m 700 "$home/run"
  printf '[Settings]\nLanguage=English\n' >"$home/.config/Wheelwright/Wheelwright.conf"
  printf '#!/bin/sh\necho "$1" >%s/shown\n' "$HOME_INSIDE" >"$home/bin/xdg-open"
  chmod +x "$home/bin/xdg-open"
  cp samples/handling.cfg "$home/handling.cfg"
  chmod u+w "$home/handling.cfg"
  chown -R "$TESTER:$TESTER" "$home"
}

start_program() {
  chroot --userspec="$TESTER:$TESTER" "$root" env -i DISPLAY="$DISPLAY" HOME="$HOME_INSIDE" \
    XDG_RUNTIME_DIR="$HOME_INSIDE/run" PATH="$HOME_INSIDE/bin:/usr/bin:/bin" LC_ALL=C.UTF-8 \
    "$1" 2>"$root/tmp/messages" &
  program=$!
}

edit_by_keyboard() {
  local name=$1
  local opened="$TITLE \\[$HOME_INSIDE/handling.cfg\\]"
  keys_to "$TITLE" key ctrl+o
  keys_to 'Open a file' type --delay 20 "$HOME_INSIDE/handling.cfg"
  keys_to 'Open a file' key Return
  keys_to "$opened" key alt+m
  xdotool key ctrl+a type --delay 20 1234.5
  xdotool key ctrl+s
  await "The changed mass" grep -q '1234\.5' "$root$HOME_INSIDE/handling.cfg"
  picture "$name"
  keys_to Wheelwright key Return
  keys_to "$opened" key F1
  await "The manual" test -s "$root$HOME_INSIDE/shown"
  keys_to "$opened" key ctrl+q
}

# Nothing but the changed value may differ from the sample, and the lines that say who wrote the file.
compare_saved() {
  diff -a <(unordered samples/handling.cfg | sed 's/^AIRSHUTTLE 18500\.0 /AIRSHUTTLE 1234.5 /' | grep -av '^$') \
    <(unordered "$root$HOME_INSIDE/handling.cfg" | grep -av '^$\|^; File created with\|^; Homepage: ') >&2 ||
    fail "The saved file isn't what it should be (<)."
}

# Plays a short session with the program at that place; NAME is that of its picture.
try_program() {
  local place=$1 name=$2 address manual
  make_user
  start_program "$place"
  edit_by_keyboard "$name"
  wait "$program" || fail "The program ended with code $?."
  compare_saved
  if [ -s "$root/tmp/messages" ]; then fail "The program wrote: $(cat "$root/tmp/messages")"; fi
  address=$(cat "$root$HOME_INSIDE/shown")
  printf -v manual '%b' "${address//%/\\x}"
  manual=${manual#file://}
  [ -f "$root$manual" ] || fail "There is no manual at $manual."
}

try_deb() {
  files_inside >"$root/tmp/before"
  cp "$package" "$root/tmp/package.deb"
  inside "$root" dpkg --install /tmp/package.deb >/dev/null
  try_program wheelwright deb
  inside "$root" dpkg --purge wheelwright >/dev/null
  files_inside >"$root/tmp/after"
  if ! diff "$root/tmp/before" "$root/tmp/after" >&2; then
    echo "The package left these files behind (>) or took them away (<)." >&2
    exit 1
  fi
}

try_archive() {
  mkdir -p "$root/opt/any where"
  tar --extract --gzip --file "$package" --directory "$root/opt/any where" --strip-components 1
  ln -s "../opt/any where/bin/wheelwright" "$root/tmp/link"
  try_program "/opt/any where/bin/wheelwright" archive
  try_program /tmp/link link
}

trap end EXIT
unpack_root "$base" "$root"
use_display "$pictures"
"try_$kind"
