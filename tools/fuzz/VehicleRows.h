// Vehicles in the input of a fuzzer: a line each, the fields between "|".
#pragma once

#include "core/Records.h"
#include "core/Table.h"

#include <string>
#include <vector>

namespace wheelwright::fuzz {

// At least one vehicle; a field that its line lacks is "0".
std::vector<Car> CarsIn(const std::string& text);

// The records of a table, none while it is unallocated.
std::vector<Car> CarsOf(const Table<Car>& cars);

}  // namespace wheelwright::fuzz
