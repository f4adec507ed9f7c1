// Made-up data files of any length, each vehicle different from all others.
#pragma once

#include <string>

namespace wheelwright::bench {

// A game file as the benchmarks need it: how it is called and filtered, and its text with so many
// vehicles.
struct DataFile {
  const char* kind;  // "handling"
  const char* name;  // "handling.cfg"
  int filterIndex;   // of the open dialog
  std::string (*text)(int vehicles);
};

extern const DataFile kHandlingData;
extern const DataFile kDefinitionData;
extern const DataFile kColorData;

}  // namespace wheelwright::bench
