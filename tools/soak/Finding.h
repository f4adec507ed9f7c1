// A session in which something was wrong, written down so that it can be played again.
#pragma once

#include "soak/Folder.h"
#include "soak/PlainSession.h"

#include <string>

namespace wheelwright::soak {

// Writes the session into a folder of its own below `directory` and gives its path. The folder has
// the form of a session test: script.jsonl, in which "@DIR@" stands for the folder that a session
// is played in, and before/ with the files.
std::string WriteFinding(const std::string& directory, const Recording& recording, const Folder& folder);

}  // namespace wheelwright::soak
