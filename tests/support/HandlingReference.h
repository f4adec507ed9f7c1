// The handling file's reader and writer once more: as plain as its description, walking every list
// for every line, and sharing nothing with the program's own but the number test and the letters'
// case. The laws hold the two against each other.
#pragma once

#include "core/Records.h"
#include "screen/Controls.h"
#include "screen/MainWindow.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What a reader leaves behind.
struct PlainHandling {
  std::vector<std::string> names;  // the list
  std::string author;
  std::string date;
  std::vector<Car> records;
  std::vector<ReportList::Row> rows;  // of the second pass
  bool windowShown = false;
  int failure = 0;  // its number; what was read until then stands above
};

// The lines of a text: each ends at a carriage return, with or without a line feed behind it.
std::vector<std::string> PlainLines(const std::string& text);

// The tokens of a line between its blanks and tabs.
std::vector<std::string> PlainTokens(std::string line);

// The record of a line's tokens, and the load problems that they give.
Car PlainRecord(const std::vector<std::string>& tokens, const FrmMain& captions,
                std::vector<ReportList::Row>& rows);

// Reads with the captions of this window and with a language whose entry n is "Ennn".
PlainHandling ReadPlainly(const std::string& text, const FrmMain& captions);

// The text of a save without the line end of the final write.
std::string WritePlainly(const std::string& onDisk, const std::vector<std::string>& names,
                         const std::vector<Car>& cars, const std::string& author,
                         const std::string& date);

}  // namespace wheelwright::testing
