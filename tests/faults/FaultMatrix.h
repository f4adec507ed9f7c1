// What every fault of every file operation of every command must come to: the table that the tests
// hold the program against, and that docs/faults.md shows.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::testing {

// Rows of a table with twelve cells: the call with its number in the order of the command's calls
// ("-" for the command without a fault), the faults, and the outcome.
struct FaultSection {
  const char* command;
  const char* rows;
};

extern const std::vector<FaultSection> kOpeningFaults;
extern const std::vector<FaultSection> kSavingFaults;
extern const std::vector<FaultSection> kSavingAsFaults;
extern const std::vector<FaultSection> kOtherFaults;

// All of them, in this order.
std::vector<FaultSection> FaultSections();

// One cell of the matrix.
struct FaultCell {
  std::string command;
  int call;           // 0: nothing goes wrong
  std::string label;  // of the call
  std::string fault;
  std::string outcome;
};

// Every cell of a section, in the order of its rows.
std::vector<FaultCell> CellsOf(const FaultSection& section);

// The page that shows the matrix.
std::string FaultPage();

}  // namespace wheelwright::testing
