// What holds for finding names in lines and in lists.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::testing {

// Looks for the names in each of the lines.
void RequireNameLaws(const std::vector<std::string>& names, const std::vector<std::string>& lines);

}  // namespace wheelwright::testing
