// Captions that are too wide, measured in the real windows.
#pragma once

#include "languages/Faults.h"

namespace wheelwright::languages {

// Takes kUsedEntries entries in the code page. A replay::Toolkit must be there.
std::vector<Fault> RoomFaults(const std::vector<std::string>& entries);

}  // namespace wheelwright::languages
