// Runs one command with one fault and puts says what came of it, cell by cell of a table.
#pragma once

#include "faults/FaultCommands.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// "cut short"
const char* NameOf(Fault fault);

// The operation and the file's name without its folder: "read handling.cfg".
std::string LabelOf(const FileCall& call);

// The calls that the command makes when nothing goes wrong.
std::vector<FileCall> CallsOf(const FaultCommand& command);

// What can happen to a call. A file is missing to the command's first call for it, and has vanished
// to a later one.
std::vector<Fault> FaultsOf(const std::vector<FileCall>& calls, std::size_t index);

// What the session shows, holds and has on disk behind the command: the ten cells of docs/faults.md
// behind the fault, in its order and words.
// `call` counts from 1; 0 lets nothing go wrong.
std::vector<std::string> OutcomeOf(const FaultCommand& command, int call, Fault fault);

}  // namespace wheelwright::testing
