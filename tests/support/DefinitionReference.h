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

// The line without blanks and tabs.
std::string WithoutBlanksAndTabs(const std::string& line);

// The texts between the commas; none for an empty text.
std::vector<std::string> SplitAtCommas(const std::string& text);

// A field of the line as the readers take it, with what that does to the line.
std::string TakeCommaField(std::string& line, std::size_t index);

// Whether the line holds one of the two banner lines that the program puts on top, in any case.
bool HoldsBanner(const std::string& line);

}  // namespace wheelwright::testing
