#include "fuzz/VehicleRows.h"

#include "fuzz/FuzzInput.h"
#include "support/TableRecords.h"
#include "support/VehicleTokens.h"

namespace wheelwright::fuzz {

std::vector<Car> CarsIn(const std::string& text) {
  std::vector<Car> cars;
  for (const std::vector<std::string>& row : RowsOf(text)) {
    testing::Tokens tokens;
    for (std::size_t index = 0; index < 33; ++index) tokens.push_back(FieldOr(row, index, "0"));
    cars.push_back(testing::CarOf(tokens));
  }
  return cars;
}

std::vector<Car> CarsOf(const Table<Car>& cars) {
  return cars.IsAllocated() ? testing::RecordsOf(cars) : std::vector<Car>();
}

}  // namespace wheelwright::fuzz
