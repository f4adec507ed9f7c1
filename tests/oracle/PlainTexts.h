// Lines, tokens and fields of the files taken apart as plainly as can be: nothing is shared with
// the program's own but the letters' case.
#pragma once

#include "formats/NameIndex.h"

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::testing {

std::string CutBlanks(std::string text);

bool HoldsInAnyCase(const std::string& text, const std::string& part);

// The lines of a text: each ends at a carriage return, with or without a line feed behind it.
std::vector<std::string> PlainLines(const std::string& text);

// What opening makes of a file on the disk: with a bare line feed anywhere, all lines are joined
// and every line feed gets a carriage return in front.
std::string NormalisedPlainly(const std::string& text);

// The tokens of a line between its blanks and tabs.
std::vector<std::string> PlainTokens(std::string line);

// The line without blanks and tabs.
std::string WithoutBlanksAndTabs(const std::string& line);

// The texts between the commas; none for an empty text.
std::vector<std::string> SplitAtCommas(const std::string& text);

// A field of the line as the readers take it, with what that does to the line.
std::string TakeCommaField(std::string& line, std::size_t index);

// Whether the line holds one of the two banner lines that the program puts on top of a definition
// or colour file, in any case.
bool HoldsBanner(const std::string& line);

// The names that the line begins with byte for byte, by a walk over all of them.
std::vector<NameHit> WalkForBeginnings(const std::vector<std::string>& names, std::string_view line);

// The names that the line holds anywhere, ignoring case, by a walk over all of them.
std::vector<NameHit> WalkForNamesAnywhere(const std::vector<std::string>& names, std::string_view line);

}  // namespace wheelwright::testing
