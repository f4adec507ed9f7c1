// Tables as a load would leave them, put into a session without any file.
#pragma once

#include "support/TestSession.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// A vehicle whose every value differs from the design and from that of another tag: Mass is
// "Mass TAG" and so on. Codes are those of the first entries, ABS is "0", the flags "0000000".
Car TaggedCar(const std::string& name, const std::string& tag);

// A definition of the same make: Typ "boat", Anim "null", Klasse "normal".
IdeEntry TaggedIde(const std::string& handlingId, const std::string& tag);

// Puts the records into the working table and its snapshot, the keys into cmbAutos, and the kind
// into CurrentFileType. Nothing is chosen.
void HoldCars(TestSession& session, const std::vector<Car>& cars);
void HoldIdes(TestSession& session, const std::vector<IdeEntry>& ides);
void HoldCarColors(TestSession& session, const std::vector<ColorEntry>& colors,
                   const std::vector<CarColorEntry>& carColors);

// Chooses the entry with this text as a person would. Fails the test if there is none.
void PickByHand(PickList& list, const std::string& text);

}  // namespace wheelwright::testing
