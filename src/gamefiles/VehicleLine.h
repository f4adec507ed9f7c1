// How a vehicle is written, in a handling file and in an export file alike.
//
//   TAXI            1450.0 1.9 4.5 1.5 ...  12000 ... 0000003 0 1
#pragma once

#include "core/Records.h"

#include <string>

namespace wheelwright {

// Appends the 33 texts of the vehicle joined by one blank each, without a line end: the name padded
// behind to 14 characters, the mass padded in front to 7, the monetary value padded in front to 6.
// Longer texts are written whole.
void AppendVehicleLine(std::string& out, const Car& car);

}  // namespace wheelwright
