// Reading handling.cfg.
//
//   ; comment                                        a ";" in the first 14 columns
//   TAXI          1450.0 1.9 4.5 ...  0000003 0 1     a vehicle, 33 tokens
//   % TAXI ...    ! TAXI ...    $ TAXI ...            marks of a vehicle, in lines of their own
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Fills cmbAutos, txtAuthor, txtDate, the snapshot and the table of vehicles from the open file,
// and the load problems window with what is wrong in its lines. The list must have been cleared.
// Failure 9 if a "%" line names a vehicle without a record, or a "!" or "$" line one whose place in
// the list is behind the records; failure 6 past 32,767 vehicles.
void LoadHandlingFile(Session& session);

}  // namespace wheelwright
