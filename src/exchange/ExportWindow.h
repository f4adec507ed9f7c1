// The window in which the vehicles to export are chosen.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdExportCar: puts every entry of cmbAutos into the left list and shows the window, which blocks
// nothing. A window that is up is used again.
void OpenExportWindow(Session& session);

// Puts the texts of the language onto the window, each time it is loaded.
void CaptionExportWindow(Session& session);

// Move the marked rows, or all rows, from one list to the other. Both lists sort themselves.
void MoveMarkedRows(MarkList& from, MarkList& to);
void MoveAllRows(MarkList& from, MarkList& to);

// The close button and the window's own close box. Nothing of the window stays.
void UnloadExportWindow(Session& session);

}  // namespace wheelwright
