// What holds for every definition file, however odd.
#pragma once

#include "core/Records.h"
#include "oracle/OddFiles.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// The reader reads what a plain one reads, up to the line that ends it.
void RequireDefinitionsRead(const std::string& text);

// The writer writes what a plain one writes over any template. Comments come through byte for byte
// and in order; a third save adds an empty line at most.
void RequireDefinitionsWritten(const std::string& onDisk, const std::vector<IdeEntry>& ides);

// With its line ends put right: what was read from one plain section and saved loads with the same
// fields, but for the extras that a line can't hold.
void RequireDefinitionsSaved(const std::string& bytes);

// A save changes nothing around the section of a tidy file, and each further one adds an empty
// line; the saved file loads with the same fields.
void RequireTidyDefinitionsKept(const TidyDefinitionFile& tidy);

}  // namespace wheelwright::testing
