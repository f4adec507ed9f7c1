// A definition on screen: its fields, and what hangs on its type, which says which Extra fields it
// has and what they mean.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Makes the first definition of the chosen handling ID current, record 0 if none has it, and fills
// the tabs. Failure 9 if no definition file was ever loaded.
void ShowDefinitionRecord(Session& session);

// Shows, hides, fills and captions the Extra controls for the current definition: a car has a wheel
// and a second value, a plane a plain value, any other type neither. No field changes.
void ApplyTypeRules(Session& session);

// cmbTyp: stores the chosen type and applies its rules.
void StoreType(Session& session);

// cmbExtra1: stores the identifier of the chosen wheel; a name without one stores nothing.
void StoreWheel(Session& session);

}  // namespace wheelwright
