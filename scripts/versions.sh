# Sourced by the scripts whose findings depend on a tool's version.

# Whether the tool is of the version that the sources are kept to. Another one finds other things, so the
# step is left out there, with a word.
is_kept_to() {
  local tool=$1 version=$2
  "$tool" --version | grep -q "version $version\." && return
  echo "Left out: the sources are kept to $tool $version, and this is another one. All else counts."
  return 1
}
