// What holds for every handling file, however odd.
#pragma once

#include "oracle/HandlingReference.h"

#include <string>

namespace wheelwright::testing {

// The reader reads what a plain one reads, up to the failure that ends it.
void RequireHandlingRead(const std::string& text);

// The writer writes what a plain one writes over any template. Comments and special lines come
// through byte for byte and in order; a fourth save changes nothing.
void RequireHandlingWritten(const std::string& onDisk, const PlainVehicles& vehicles);

// With its line ends put right: what was read and saved has all its tokens, and loads with them
// again if its names are told apart. A second save adds an empty line at most, a third nothing.
void RequireHandlingSaved(const std::string& bytes);

// A tidy file loads, and with the same records again when it has been saved.
void RequireTidyHandlingKept(const std::string& text);

}  // namespace wheelwright::testing
