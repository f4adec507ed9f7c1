// The handling file's reader and writer once more: as plain as its description, walking every list
// for every line, and sharing nothing with the program's own but the number test, the letters' case
// and what a problem is. The laws hold the two against each other.
#pragma once

#include "core/Records.h"
#include "formats/HandlingLine.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What a reader leaves behind.
struct PlainHandling {
  std::vector<std::string> names;  // the list
  std::string author;
  std::string date;
  std::vector<Car> records;
  LineProblems problems;  // of the second pass
  bool hasOddNames = false;
  int failure = 0;  // its number; what was read until then stands above
};

// The lines of a text: each ends at a carriage return, with or without a line feed behind it.
std::vector<std::string> PlainLines(const std::string& text);

// The tokens of a line between its blanks and tabs.
std::vector<std::string> PlainTokens(std::string line);

// The record of a line's tokens, and the problems that they give.
Car PlainRecord(const std::vector<std::string>& tokens, LineProblems& problems);

PlainHandling ReadPlainly(const std::string& text);

// The text of a save without the line end of the final write.
std::string WritePlainly(const std::string& onDisk, const std::vector<std::string>& names,
                         const std::vector<Car>& cars, const std::string& author,
                         const std::string& date);

}  // namespace wheelwright::testing
