// Writing the chosen vehicles to files of their own.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdExport: writes the vehicles of the right list, in its order, to a file that the import can
// read, and unloads the window. Nothing happens while the list is empty. Guarded; a failure leaves
// the window up.
void ExportVehicles(Session& session);

// Spez: writes the suspension values of the vehicles of the right list as lines of assignments.
// Nothing happens while the list is empty. Not guarded: even a cancelled dialog is a failure that
// passes.
void WriteTuningList(Session& session);

}  // namespace wheelwright
