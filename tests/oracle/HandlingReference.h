// The handling file's reader and writer once more: as plain as its description, walking every list
// for every line, and sharing nothing with the program's own but the number test, the letters' case
// and what a problem is. The laws hold the two against each other.
#pragma once

#include "core/Records.h"
#include "formats/HandlingLine.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What a file of vehicles is made of.
struct PlainVehicles {
  std::vector<std::string> names;  // the list
  std::vector<Car> cars;
  std::string author;
  std::string created;
};

// What a reader leaves behind.
struct PlainHandling : PlainVehicles {
  LineProblems problems;  // of the second pass
  bool hasOddNames = false;
  int failure = 0;  // its number; what was read until then stands above
};

// The record of a line's tokens, and the problems that they give.
Car PlainRecord(const std::vector<std::string>& tokens, LineProblems& problems);

PlainHandling ReadPlainly(const std::string& text);

// The lines of the vehicles, in the order of the names.
std::string VehicleLinesPlainly(const PlainVehicles& vehicles);

// The text of a save without the line end of the final write.
std::string WritePlainly(const std::string& onDisk, const PlainVehicles& vehicles);

}  // namespace wheelwright::testing
