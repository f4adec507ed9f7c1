// What holds for saving over any template, told without any writer's rules.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::testing {

// The lines come through a save byte for byte and in order.
void RequireInOrder(const std::vector<std::string>& lines, const std::string& saved);

// Comments, which have a "#" in their first columns, and all lines in front of the first section
// come through, but for comments that name the program. A section begins with one of the words.
void RequireSectionComments(const std::string& onDisk, const std::string& saved, std::size_t columns,
                            const std::vector<std::string>& sections);

// A save over the one before changes nothing, or adds the line ends that every save adds.
void RequireOnlyGrowth(const std::string& earlier, const std::string& later, const std::string& growth);

}  // namespace wheelwright::testing
