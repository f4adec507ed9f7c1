// The faults of a file as its translator reads them.
#pragma once

#include "languages/Faults.h"

namespace wheelwright::languages {

// A line for each fault: file, entry, line of the file and control, and what is wrong; or one line
// that all is well.
std::string ReportOf(const std::string& file, const std::vector<Fault>& faults);

}  // namespace wheelwright::languages
