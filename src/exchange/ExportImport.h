// The window in which the vehicles to export are chosen, and the files that it writes; taking
// vehicles in from such a file, or from any file with vehicle lines.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdExportCar: puts the texts of the language onto the window and every entry of cmbAutos into its
// left list, and shows it, which blocks nothing. A window that is up is used again.
void OpenExportWindow(Session& session);

// Move the marked rows, or all rows, from one list to the other. Both lists sort themselves.
void MoveMarkedRows(MarkList& from, MarkList& to);
void MoveAllRows(MarkList& from, MarkList& to);

// The close button and the window's own close box. Nothing of the window stays.
void UnloadExportWindow(Session& session);

// cmdExport: writes the vehicles of the right list, in its order, to a file that the import can
// read, and unloads the window. Nothing happens while the list is empty. Guarded; a failure leaves
// the window up.
void ExportVehicles(Session& session);

// Spez: writes the suspension values of the vehicles of the right list as lines of assignments.
// Nothing happens while the list is empty. Not guarded: even a cancelled dialog is a failure that
// passes.
void WriteTuningFile(Session& session);

// cmdImportCar: adds the vehicles of a file chosen by dialog to the working table and their names
// to cmbAutos, and shows the first vehicle. Every line that begins with any name of the list makes
// a record, also if a vehicle of that name is there. Guarded; a failure leaves what was added until
// then.
void ImportVehicles(Session& session);

}  // namespace wheelwright
