// The matrix of docs/faults.md as it comes when every command is played with every fault.
#pragma once

#include "faults/FaultCommands.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// The page's section of a command, line by line from its heading on.
std::vector<std::string> FaultSectionOf(const FaultCommand& command);

}  // namespace wheelwright::testing
