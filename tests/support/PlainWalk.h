// The plain walk over all names that an index of names stands for.
#pragma once

#include "formats/NameIndex.h"

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::testing {

// The names that the line begins with byte for byte, by a walk over all of them.
std::vector<NameHit> WalkForBeginnings(const std::vector<std::string>& names,
                                       std::string_view line);

// The names that the line holds anywhere, ignoring case, by a walk over all of them.
std::vector<NameHit> WalkForNamesAnywhere(const std::vector<std::string>& names,
                                          std::string_view line);

}  // namespace wheelwright::testing
