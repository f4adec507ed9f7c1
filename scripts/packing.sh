# Sourced by the scripts that make packages: what both kinds have in common.

# The version of the program in a configured build folder.
built_version() {
  sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt"
}

# Lays out the files of a build folder as users get them, in a new folder. Their times are that of the last
# commit, so that the same sources make the same packages.
lay_out_files() {
  local moment
  moment=$(commit_time)
  rm -rf "$2"
  (umask 022 && SOURCE_DATE_EPOCH=$moment cmake --install "$1" --strip --prefix "$2" >/dev/null)
  find "$2" -exec touch --no-dereference --date="@$moment" {} +
}

commit_time() {
  git log -1 --format=%ct 2>/dev/null || date +%s
}

# Writes the sums of all packages that lie in dist, for those who fetch them.
write_sums() {
  (cd dist && find . -maxdepth 1 -name 'wheelwright*' -type f -printf '%P\n' | LC_ALL=C sort |
    xargs sha256sum >SHA256SUMS && cat SHA256SUMS)
}
