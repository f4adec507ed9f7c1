// Reading default.ide. Only the lines between "cars" and "end" are read.
//
//   cars
//   131, harrow, harrow, car, HARROW, HARROW, null, normal, 10, 7, 0, 250, 0.8   # comment
//   end
#pragma once

#include "screen/Session.h"

#include <optional>

namespace wheelwright {

// Fills cmbAutos, the snapshot and the table of definitions from the open file. Gives the number of
// the line, counted from 1, at which a damaged file stopped the load: the snapshot then holds what
// was read so far and the table what it held before. Failure 6 past 32,767 lines or records.
std::optional<int> LoadDefinitionFile(Session& session);

}  // namespace wheelwright
