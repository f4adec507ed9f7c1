# Sourced by run, test and the other scripts: which packages of Debian each purpose needs, and how
# they come onto the machine.

declare -A PACKAGES=(
  [build]="g++ cmake ninja-build qt6-base-dev qt6-translations-l10n nlohmann-json3-dev fonts-dejavu-core"
  [test]="clang libclang-rt-dev lld libgtest-dev librapidcheck-dev clang-format clang-tidy python3 ccache"
  [bench]="libbenchmark-dev mawk xvfb"
  [coverage]="llvm gcovr"
  [pictures]="librsvg2-bin imagemagick"
  [icons]="librsvg2-bin icoutils"
  [metadata]="desktop-file-utils appstream mandoc"
  [package]="lintian qt6-wayland patchelf binutils"
  [display]="xvfb xauth xdotool"
  [try-package]="mmdebstrap xvfb xdotool imagemagick x11-utils"
  [hostile]="python3"
  [real-disk]="python3 strace e2fsprogs"
  [windows-logic]="g++-mingw-w64-x86-64-posix wine wine64 cmake ninja-build nlohmann-json3-dev googletest python3"
  [windows]="qt6-base-dev qt6-base-dev-tools dpkg-dev nsis unzip fonts-wine xvfb xdotool imagemagick python3"
)

# The packages of the given purposes, in one line.
packages_for() {
  local purpose
  for purpose in "$@"; do printf '%s ' "${PACKAGES[$purpose]}"; done
}

is_installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# The command, as root.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

apt_get() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y \
    -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@"
}

install_packages() {
  local log
  log=$(mktemp)
  echo "Installing: $*"
  if apt_get update >"$log" 2>&1 &&
    apt_get install --no-install-recommends "$@" >>"$log" 2>&1; then
    rm -f "$log"
  else
    cat "$log" >&2
    echo "The packages could not be installed; the messages of apt-get stand above." >&2
    rm -f "$log"
    return 1
  fi
}

# Installs what the given purposes need and the machine lacks; fails with a clear word where it can't.
need_packages() {
  local package
  local missing=()
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    if [ -n "${WHEELWRIGHT_HAVE_PACKAGES:-}" ]; then return 0; fi
    cat >&2 <<END
This system has no apt-get, so nothing is installed by itself. What is needed, by the names of
Debian 12: $(packages_for "$@")
Install the like of it, then say WHEELWRIGHT_HAVE_PACKAGES=1 ${0}
END
    return 1
  fi
  for package in $(packages_for "$@" | tr " " "\n" | sort -u); do
    is_installed "$package" || missing+=("$package")
  done
  if [ ${#missing[@]} -eq 0 ]; then return 0; fi
  if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    echo "Missing packages, and no sudo to install them. As root: apt-get install ${missing[*]}" >&2
    return 1
  fi
  install_packages "${missing[@]}"
}
