// The two safety actions: a copy of the file on disk, and the way back to the snapshots.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Copies the open file, as it lies on disk, to its name with ".backup" added, after a question if
// such a file is there. Guarded but for the test for that file.
void BackupFile(Session& session);

// After a question, copies the snapshots of the open kind back over its tables, fills the lists
// anew and chooses the first vehicle. Leaves IsSaved as it is. Guarded.
void RevertToSnapshot(Session& session);

}  // namespace wheelwright
