// What holds for every language file, however odd.
#pragma once

#include <string>

namespace wheelwright::testing {

// The first file is read, then the second over it: the entries are those of plain reading, and
// those behind a file's end stay.
void RequireLanguagesRead(const std::string& first, const std::string& second);

}  // namespace wheelwright::testing
