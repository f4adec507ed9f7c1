// Reading carcols.dat: the palette between "col" and "end", then the pairs between "car" and "end".
//
//   col
//   0,10,20<tab><tab><tab><tab># 1 navy        a colour; behind the first tab only the name counts
//   end
//   car
//   harrow, 0, 1, 5, 5                         a vehicle with two pairs
//   end
#pragma once

#include "screen/Session.h"

#include <optional>

namespace wheelwright {

// Fills the palette, the pairs, their lists and snapshots from the open file, and chooses the first
// entries. Gives the number of the line, counted from 1, at which a damaged file stopped the load:
// the palette and lstColors then hold what the first pass gave. Failures 13 and 6 for numbers that
// aren't any or don't fit, failure 380 for a file without a palette or without vehicles.
std::optional<int> LoadColorFile(Session& session);

}  // namespace wheelwright
