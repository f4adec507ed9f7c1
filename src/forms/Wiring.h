// Which event of which control runs which handler: the one place that knows them all. And the way
// from the start of the program to the idle window, and the two in which it ends.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Wires every event of the three windows. The session must outlive its controls' events.
void WireEvents(Session& session);

// The start-up: the events must be wired before. `programDirectory` is UTF-8, with or without a
// separator at its end. Ends the program through the desktop if there is no language file; failures
// of a language file are the caller's.
void StartUp(Session& session, const std::string& programDirectory);

// cmdEnde and the main window's close request: asks only if edits are pending. Without the user's
// yes nothing happens, so a close request is refused by not ending the program.
void RequestEnd(Session& session);

}  // namespace wheelwright
