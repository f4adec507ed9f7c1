# What a user would write who wants a handling file tidy and sorted without an editor.
{ sub(/\r$/, "") }
/^;/ { print; next }
{
  line = sprintf("%-14s", $1)
  for (i = 2; i <= NF; i++) line = line " " $i
  print line | "sort -f"
}
