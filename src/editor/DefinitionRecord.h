// A vehicle definition on screen.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Makes the first definition of the chosen handling ID current, record 0 if none has it, and fills
// the tabs. Failure 9 if no definition file was ever loaded.
void ShowDefinitionRecord(Session& session);

}  // namespace wheelwright
