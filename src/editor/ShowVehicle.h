// From the tables to the screen: the one way of showing a record.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Shows the record that belongs to the chosen entry of cmbAutos in the tabs of the open kind, and
// makes it current. Without an entry in the list nothing happens. IsSaved is as before afterwards,
// although filling the controls runs their handlers.
void ShowVehicle(Session& session);

}  // namespace wheelwright
