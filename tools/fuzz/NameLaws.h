// What holds for finding names in lines and in lists.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::fuzz {

// Looks for the names in each line of a text.
void RequireNameLaws(const std::vector<std::string>& names, const std::string& lines);

}  // namespace wheelwright::fuzz
