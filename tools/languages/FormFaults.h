// The form of a language file: its line ends, its code page, its number of lines.
#pragma once

#include "languages/Faults.h"

namespace wheelwright::languages {

std::vector<Fault> FormFaults(const std::string& bytes);

}  // namespace wheelwright::languages
