// The single texts of a language file: what is missing, what is too much, what the program needs to
// find in them.
#pragma once

#include "languages/Faults.h"

namespace wheelwright::languages {

// Takes kUsedEntries entries in the code page.
std::vector<Fault> TextFaults(const std::vector<std::string>& entries);

}  // namespace wheelwright::languages
