// cmdOpen, the one way to load data.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Asks about pending edits, shows the file dialog, tells the kind of the file from its name and the
// dialog's filter index together, and loads it. A failure leaves the window in its reset state, but
// for the cancelled dialog; a file that isn't there or is of no known kind is told and resets
// nothing.
void OpenFile(Session& session);

}  // namespace wheelwright
