# Sourced by run and by what tries a package: what stands in a saved file, to compare it with another.

# The text of a file with nothing left of order, line ends and the amount of blanks.
unordered() {
  tr -d '\r' <"$1" | tr -s ' \t' '  ' | sed 's/ $//' | LC_ALL=C sort
}
