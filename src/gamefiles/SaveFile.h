// The tables go back into a game file, with every foreign line in place; and the two safety
// actions: a copy of the file on disk, and the way back to the snapshots.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdSave: writes the tables into the open file. Does nothing if that file is gone. Not guarded: a
// failure passes.
void SaveFile(Session& session);

// cmdSaveAs: writes the tables into a file chosen by dialog, with the open file as the template.
// Guarded.
void SaveFileAs(Session& session);

// cmdBackup: copies the open file, as it lies on disk, to its name with ".backup" added, after a
// question if such a file is there. Guarded but for the test for that file.
void BackupFile(Session& session);

// cmdUndo: after a question, copies the snapshots of the open kind back over its tables, fills the
// lists anew and chooses the first vehicle. Leaves IsSaved as it is. Guarded.
void RevertToSnapshot(Session& session);

}  // namespace wheelwright
