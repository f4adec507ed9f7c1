// Files with bare line feeds, which the line reader doesn't take for line ends.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Rewrites the open file on disk if it has a bare line feed anywhere: every bare line feed becomes
// a carriage return and line feed, and the lines that ended properly are joined to their
// neighbours. Leaves every other file alone. Throws what reading and writing throw.
void NormaliseLineEnds(Session& session);

}  // namespace wheelwright
