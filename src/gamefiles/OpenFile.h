// cmdOpen, the one way to load data.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Asks about pending edits, shows the file dialog, tells the kind of the file from its name and the
// dialog's filter index together, and loads it. Any failure leaves the window in its reset state.
void OpenFile(Session& session);

}  // namespace wheelwright
