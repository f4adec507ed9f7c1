// What holds for texts and their letters.
#pragma once

#include <string>

namespace wheelwright::testing {

// The way between the code page and Unicode.
void RequireLetterLaws(const std::string& text);

// Searching, comparing, cutting and filling.
void RequireTextLaws(const std::string& text, const std::string& other);

}  // namespace wheelwright::testing
