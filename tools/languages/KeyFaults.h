// The keys of a language file: "&" stands before the letter that, with Alt, reaches a button or the
// input of a label.
#pragma once

#include "languages/Faults.h"

namespace wheelwright::languages {

// Takes kUsedEntries entries in the code page.
std::vector<Fault> KeyFaults(const std::vector<std::string>& entries);

}  // namespace wheelwright::languages
