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

// Makes the first definition of the chosen handling ID current, record 0 if none has it, and fills
// the tabs. Failure 9 if no definition file was ever loaded.
void ShowDefinitionRecord(Session& session);

// Lists the pairs of every entry whose model name is the chosen one, and makes the last such entry
// current. A colour number is looked up among the palette's Index values. The first pair of an
// entry is repaired: a number without a name there becomes the number of the palette's first
// colour. From the second pair on such a number keeps the name of the pair before it. Failure 9 if
// no colour file was ever loaded.
void ShowColorPairs(Session& session);

}  // namespace wheelwright
