// Which controls of a session somebody can reach, and what can be done to them.
#pragma once

#include "oracle/Dice.h"
#include "screen/Session.h"
#include "soak/Step.h"

#include <optional>
#include <vector>

namespace wheelwright::soak {

// The controls of all windows to which something can be done: no labels, frames or pictures.
std::vector<Control*> AllControls(Session& session);

// Those on the tabs of the kind of file that is open, usable or not.
std::vector<Control*> ControlsOnTabs(Session& session);

// Some action at the control; nothing if it offers none now, as a list without rows.
std::optional<Step> RandomAction(testing::Dice& dice, Control& control, bool isForced);

Step Click(const Control& button, bool isForced = false);

}  // namespace wheelwright::soak
