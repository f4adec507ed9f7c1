// From the tables to the screen.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// The one way of showing a record: shows the one that belongs to the chosen entry of cmbAutos in
// the tabs of the open kind, and makes it current. Without an entry in the list nothing happens.
// IsSaved is as before afterwards, although filling the controls runs their handlers.
void ShowVehicle(Session& session);

// Makes the first vehicle of the chosen name current, record 0 if none has it, and fills the tabs.
// An empty ABS becomes "0" and the flags are padded to seven digits in the record. Failure 9 if no
// handling file was ever loaded.
void ShowHandlingRecord(Session& session);

// The captions of nine fields change for a vehicle that a "%" line names; their hints are then
// empty.
void ApplyLineKindCaptions(Session& session, std::int16_t lineKind);

}  // namespace wheelwright
