# Sourced by package: the static Qt for Windows that the program is linked with, built once into
# a cache folder outside the repository.

WINDOWS_CACHE=${XDG_CACHE_HOME:-$HOME/.cache}/wheelwright-windows

# The sources of Qt must be of the version of the tools that run on this machine.
qt_version() {
  dpkg-query -W -f='${source:Version}' qt6-base-dev-tools
}

# The machine's package sources as sources of source packages, in a folder of their own, so that what
# the system knows of its packages stays as it is.
apt_get_source() {
  local folder=$WINDOWS_CACHE/apt
  local options=(
    -qq -o Acquire::Retries=3 -o APT::Sandbox::User="$(id -un)"
    -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$folder/sources.list.d"
    -o Dir::State::lists="$folder/lists" -o Dir::Cache="$folder/cache"
  )
  local list
  mkdir -p "$folder/sources.list.d" "$folder/lists/partial" "$folder/cache/archives/partial"
  for list in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
    [ -f "$list" ] || continue
    sed -E 's/^deb\b/deb-src/; s/^(Types:.*)\bdeb\b/\1deb-src/' "$list" \
      >"$folder/sources.list.d/${list##*/}"
  done
  apt-get "${options[@]}" update || true # sources that have no source packages
  apt-get "${options[@]}" source --download-only "$@"
}

fetch_qt() {
  rm -rf "$WINDOWS_CACHE/source"
  mkdir -p "$WINDOWS_CACHE/source"
  cd "$WINDOWS_CACHE/source"
  apt_get_source "qt6-base=$(qt_version)"
  dpkg-source --no-check -x ./*.dsc qt6-base
}

configure_qt() {
  local toolchain=$1 feature
  local options=(
    -D CMAKE_TOOLCHAIN_FILE="$toolchain" -D CMAKE_INSTALL_PREFIX="$2"
    -D CMAKE_BUILD_TYPE=MinSizeRel -D BUILD_SHARED_LIBS=OFF
    -D QT_HOST_PATH=/usr -D QT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
    -D QT_BUILD_EXAMPLES=OFF -D QT_BUILD_TESTS=OFF -D INPUT_opengl=no
  )
  for feature in sql testlib dbus printsupport network concurrent xml vulkan pkg_config system_zlib \
    tabletevent; do
    options+=(-D "FEATURE_$feature=OFF")
  done
  cmake -G Ninja -S "$WINDOWS_CACHE/source/qt6-base" -B "$WINDOWS_CACHE/build" "${options[@]}"
}

build_qt() {
  (fetch_qt)
  rm -rf "$WINDOWS_CACHE/build"
  configure_qt "$1" "$2"
  nice -n 19 cmake --build "$WINDOWS_CACHE/build"
  cmake --install "$WINDOWS_CACHE/build"
  rm -rf "$WINDOWS_CACHE/build" "$WINDOWS_CACHE/source"
}

# Sets WINDOWS_QT to the folder of the static Qt; builds it there with the given toolchain file if it
# isn't there yet, which takes some forty minutes on two cores.
need_windows_qt() {
  local log=$WINDOWS_CACHE/qt.log
  WINDOWS_QT=$WINDOWS_CACHE/qt-$(qt_version)
  [ -e "$WINDOWS_QT/complete" ] && return
  mkdir -p "$WINDOWS_CACHE"
  echo "Building Qt for Windows once, into $WINDOWS_QT; the messages go to $log"
  rm -rf "$WINDOWS_QT"
  if ! (set -e; build_qt "$1" "$WINDOWS_QT") >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    return 1
  fi
  touch "$WINDOWS_QT/complete"
}
