// cmdSave and cmdSaveAs: the tables go back into a game file, with every foreign line in place.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Writes the tables into the open file. Does nothing if that file is gone. Not guarded: a failure
// passes.
void SaveFile(Session& session);

// Writes the tables into a file chosen by dialog, with the open file as the template. Guarded.
void SaveFileAs(Session& session);

}  // namespace wheelwright
