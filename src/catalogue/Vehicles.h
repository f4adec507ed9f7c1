// Adding and deleting vehicles, behind two buttons that nothing shows. Both work on the working
// table of vehicles alone, whatever kind of file is open, and both are guarded.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Adds a blank vehicle at the table's end and its name to cmbAutos, where it isn't chosen.
void AddVehicle(Session& session);

// After a question, deletes every vehicle of the chosen name. The first entry is shown while the
// table still holds the old records, so the current index may be too high by what stood before it.
void DeleteVehicle(Session& session);

}  // namespace wheelwright
