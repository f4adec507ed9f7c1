// What holds for taking the lines of the three formats apart.
#pragma once

#include <string>

namespace wheelwright::testing {

// Each byte of `calls` is one call on the same line: "n" counts its fields, any other byte takes
// the field of a number.
void RequireCommaLaws(const std::string& text, const std::string& calls);

// The fields of a line of blanks and its single-blank form.
void RequireSpaceLaws(const std::string& text);

// All 33 tokens of a handling line, their checks and defaults.
void RequireTokenLaws(const std::string& line);

}  // namespace wheelwright::testing
