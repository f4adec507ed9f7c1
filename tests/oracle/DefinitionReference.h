// The definition file's reader and writer once more: as plain as their description, sharing nothing
// with the program's own but the letters' case. The laws hold the two against each other.
#pragma once

#include "core/Records.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What a reader leaves behind.
struct PlainDefinitions {
  std::vector<IdeEntry> records;
  std::vector<std::string> keys;  // in the order of the file
  int damagedLine = 0;            // 0: none
};

PlainDefinitions ReadDefinitionsPlainly(const std::string& text);

// The text of a save without the line end of the final write.
std::string WriteDefinitionsPlainly(const std::string& onDisk, const std::vector<IdeEntry>& ides);

}  // namespace wheelwright::testing
