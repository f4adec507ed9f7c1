// Whether a person could use a control now.
#pragma once

#include "screen/Control.h"

namespace wheelwright::replay {

// False for a control that is disabled or hidden, by itself or by what it lies in, and for one of a
// window that isn't up. A page that isn't in front hinders nobody.
bool CanBeUsedNow(const Control& control);

}  // namespace wheelwright::replay
