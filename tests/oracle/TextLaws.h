// What holds for every text, line and number, however odd. Each law throws LawBroken where it is
// broken.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::testing {

// Each byte of `calls` is one call on the same line: "n" counts its fields, any other byte takes
// the field of a number.
void RequireCommaLaws(const std::string& text, const std::string& calls);

// The fields of a line of blanks and its single-blank form.
void RequireSpaceLaws(const std::string& text);

// All 33 tokens of a handling line, their checks and defaults.
void RequireTokenLaws(const std::string& line);

// Looks for the names in each of the lines.
void RequireNameLaws(const std::vector<std::string>& names, const std::vector<std::string>& lines);

void RequireNumberLaws(const std::string& text);

// The way between the code page and Unicode.
void RequireLetterLaws(const std::string& text);

// Searching, comparing, cutting and filling.
void RequireTextLaws(const std::string& text, const std::string& other);

// The order of lists.
void RequireOrderLaws(const std::vector<std::string>& texts);

}  // namespace wheelwright::testing
