// A recorded session once more, through the real widgets.
#pragma once

#include "soak/Folder.h"
#include "soak/PlainSession.h"

#include <string>

namespace wheelwright::soak {

// Plays the recording's script in a fresh copy of its files and tells what came out otherwise;
// empty if nothing did. A replay::Toolkit must be there.
std::string ReplayOnWidgets(const Recording& recording, const Folder& folder);

}  // namespace wheelwright::soak
