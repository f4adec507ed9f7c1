// What holds for every file, however odd. Each law throws LawBroken where it is broken.
#pragma once

#include "core/Records.h"
#include "oracle/HandlingReference.h"
#include "oracle/OddFiles.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// The handling file

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

// The definition file

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

// The colour file

// The readers of the two sections read what plain ones read, up to what ends them.
void RequireColorsRead(const std::string& text);

// The writers write what plain ones write over any template. Comments come through byte for byte
// and in order; a third save adds its line ends at most.
void RequireColorsWritten(const std::string& onDisk, const std::vector<ColorEntry>& colors,
                          const std::vector<CarColorEntry>& carColors);

// With its line ends put right: what was read from two plain sections and saved loads with the same
// colours and pairs.
void RequireColorsSaved(const std::string& bytes);

// A save of a tidy file adds the banner and its line ends, each further one line ends alone; the
// saved file loads with the same colours, numbered anew, and the same pairs.
void RequireTidyColorsKept(const std::string& text);

// The way of vehicles from one file to another

// An import gives what a plain walk over rows and lines gives; failure 9 without a record.
void RequireImported(const std::string& text, const std::vector<std::string>& rows,
                     const std::vector<Car>& cars);

// An export writes what plain writing writes.
void RequireExported(const PlainVehicles& vehicles);

// Vehicles without blanks in their texts, of names that fit into the head of a line, come back with
// all their texts when their export is imported elsewhere.
void RequireExportComesBack(const PlainVehicles& vehicles);

// The language files

// The first file is read, then the second over it: the entries are those of plain reading, and
// those behind a file's end stay.
void RequireLanguagesRead(const std::string& first, const std::string& second);

}  // namespace wheelwright::testing
