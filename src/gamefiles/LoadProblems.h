// The window that lists what is wrong with vehicle lines. A problem never stops a load.
#pragma once

#include "formats/HandlingLine.h"
#include "screen/Session.h"

namespace wheelwright {

// Adds a row for each problem behind those that are there, in the words of the moment, and shows
// the window if there is one.
void AddLoadProblems(Session& session, const LineProblems& problems);

// The close button and the window's own close box: the window is only hidden, its rows stay.
void HideLoadProblems(Session& session);

}  // namespace wheelwright
