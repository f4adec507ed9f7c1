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

// What the session shows, holds and has on disk behind the command, as ten cells:
//   all boxes, dialogs and pointers in order, and the end of the program
//   the tables, each before a "/" and its snapshot: names or keys with the one value that is edited
//   IsSaved: "saved" or "pending"
//   CurrentFile, without its folder
//   the commands and tab groups that are enabled
//   the rows of cmbAutos
//   the file of the picture on screen
//   the first two entries of the language table
//   the settings that differ from before the command
//   the files that differ from before the command
// `call` counts from 1; 0 lets nothing go wrong.
std::vector<std::string> OutcomeOf(const FaultCommand& command, int call, Fault fault);

}  // namespace wheelwright::testing
