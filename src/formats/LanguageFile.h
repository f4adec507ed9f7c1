// A language file. The position of a line is its meaning: line 1 is entry 0 of the language table.
// Backslash and n, or backslash and N, stand for a line break.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace wheelwright {

// Reads the lines over the entries; those behind the file's end stay as they are. Failure 9 for a
// file with more lines than there are entries, when all of them have been read.
void ReadLanguage(std::string_view text, std::span<std::string> entries);

}  // namespace wheelwright
