// The window that lists what is wrong with vehicle lines. A problem never stops a load.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Adds a row behind those that are there and shows the window: the vehicle's name, the caption of
// the field (empty for the line as a whole), the text of the problem.
void AddLoadProblem(Session& session, std::string vehicle, std::string parameter,
                    std::string problem);

// Adds the row for a line that hasn't 33 tokens.
void AddTokenCountProblem(Session& session, std::string vehicle, int tokens);

// Empties the list and leaves the window as it is.
void ClearLoadProblems(Session& session);

// The close button and the window's own close box: the window is only hidden, its rows stay.
void HideLoadProblems(Session& session);

}  // namespace wheelwright
