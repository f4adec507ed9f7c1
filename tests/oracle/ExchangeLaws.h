// What holds for the way of vehicles from one file to another, whatever they are.
#pragma once

#include "oracle/HandlingReference.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// An import gives what a plain walk over rows and lines gives; failure 9 without a record.
void RequireImported(const std::string& text, const std::vector<std::string>& rows,
                     const std::vector<Car>& cars);

// An export writes what plain writing writes.
void RequireExported(const PlainVehicles& vehicles);

// Vehicles without blanks in their texts, of names that fit into the head of a line, come back with
// all their texts when their export is imported elsewhere.
void RequireExportComesBack(const PlainVehicles& vehicles);

}  // namespace wheelwright::testing
