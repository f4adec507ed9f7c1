// Files of chosen vehicles: what the export writes, and the import reads from any file with vehicle
// lines.
#pragma once

#include "core/Table.h"
#include "formats/HandlingFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// The head of an export file, and the whole file.
std::string ExportHeader(const WrittenVehicles& vehicles);
std::string WriteExport(const WrittenVehicles& vehicles);

// The suspension values of the vehicles as lines of assignments.
std::string WriteTuningList(const WrittenVehicles& vehicles);

// The names in a file that aren't known yet, cut at the head of their lines.
std::vector<std::string> NewNamesIn(std::string_view text, const std::vector<std::string>& known);

// Adds a record for every name that a line begins with, whether a vehicle of that name is there or
// not. Failure 9 for an unallocated table, failure 6 past 32,767 records; what was read until then
// stays.
void ReadExport(std::string_view text, const std::vector<std::string>& names, Table<Car>& cars,
                LineProblems& problems);

}  // namespace wheelwright
