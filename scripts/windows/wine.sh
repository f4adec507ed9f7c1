# Sourced by windows-logic and try: a wine of its own for the programs under trial.

# Makes the folder a fresh disk C of wine, or uses the one that lies there. Wine's server stays up until
# stop_wine, so that each program starts at once; nothing of wine reaches for the user's menus. The fonts
# that every Windows has are put where programs look for them, if wine's are installed.
use_wine() {
  export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
  cp -n /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts" 2>/dev/null || true
  wineserver --persistent || echo "A server of wine is up already." >&2
  [ -e "$WINEPREFIX/system.reg" ] || wine wineboot --init >/dev/null 2>&1
}

stop_wine() {
  wineserver --kill || true
}
