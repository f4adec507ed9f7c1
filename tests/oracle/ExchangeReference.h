// Export and import once more, as one would tell them: row by row, line by line, with the tokens of
// the handling file's reference. The laws hold the two against each other.
#pragma once

#include "oracle/HandlingReference.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What an import leaves behind.
struct PlainImport {
  std::vector<std::string> newNames;
  std::vector<std::string> rows;  // the list with the new names
  std::vector<Car> cars;
  LineProblems problems;
};

// Adds the vehicles of a file's text to the rows of a list, which may be out of order, and to a
// table.
PlainImport ImportPlainly(const std::string& text, std::vector<std::string> rows, std::vector<Car> cars);

std::string ExportPlainly(const PlainVehicles& vehicles);

}  // namespace wheelwright::testing
