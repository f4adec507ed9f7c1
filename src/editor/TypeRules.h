// What hangs on a vehicle's type: which Extra fields it has and what they mean.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Shows, hides, fills and captions the Extra controls for the current definition: a car has a wheel
// and a second value, a plane a plain value, any other type neither. No field changes.
void ApplyTypeRules(Session& session);

// cmbTyp: stores the chosen type and applies its rules.
void StoreType(Session& session);

// cmbExtra1: stores the identifier of the chosen wheel; a name without one stores nothing.
void StoreWheel(Session& session);

}  // namespace wheelwright
