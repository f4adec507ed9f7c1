// The colour pairs of a vehicle on screen.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Lists the pairs of every entry whose model name is the chosen one, and makes the last such entry
// current. A colour number is looked up among the palette's Index values. The first pair of an
// entry is repaired: a number without a name there becomes the number of the palette's first
// colour. From the second pair on such a number keeps the name of the pair before it. Failure 9 if
// no colour file was ever loaded.
void ShowColorPairs(Session& session);

}  // namespace wheelwright
