// Taking vehicles in from an export file, or from any file with vehicle lines.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdImportCar: adds the vehicles of a file chosen by dialog to the working table and their names
// to cmbAutos, and shows the first vehicle. Every line that begins with any name of the list makes
// a record, also if a vehicle of that name is there. Guarded; a failure leaves what was added until
// then.
void ImportVehicles(Session& session);

}  // namespace wheelwright
