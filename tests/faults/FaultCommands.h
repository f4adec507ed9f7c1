// Every command that reaches the disk: what stands before it, and the one event that runs it.
#pragma once

#include "faults/FaultySession.h"

#include <vector>

namespace wheelwright::testing {

struct FaultCommand {
  const char* name;
  void (*arrange)(FaultySession&);
  void (*run)(FaultySession&);
};

const std::vector<FaultCommand>& FaultCommands();

}  // namespace wheelwright::testing
