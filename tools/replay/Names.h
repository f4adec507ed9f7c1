// How scripts name windows and controls: a control of the main window by its own name, one of
// another window as "frmError.cmdClose".
#pragma once

#include "screen/Session.h"

#include <array>
#include <string>

namespace wheelwright::replay {

std::array<Window*, 3> WindowsOf(Session& session);

// Null if there is none of that name.
Window* FindWindow(Session& session, const std::string& name);
Control* FindControl(Session& session, const std::string& name);

std::string ScriptName(const Control& control);

}  // namespace wheelwright::replay
