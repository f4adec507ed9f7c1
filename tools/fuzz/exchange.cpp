// Imports a text into any list and table, exports any vehicles, and imports such. The input: the
// text, an odd file if it is empty; the list, a line for each row; dice.
#include "fuzz/FuzzInput.h"
#include "oracle/FormatLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  const std::string bytes = input.Take();
  const std::vector<std::string> rows = input.TakeLines();
  Dice dice = input.TakeDice();
  const std::string text = bytes.empty() ? OddExchangeFile(dice) : bytes;
  const PlainVehicles vehicles = OddVehicles(dice);
  RequireImported(text, rows, {});
  RequireImported(text, rows, vehicles.cars);
  RequireExported(vehicles);
  RequireExportComesBack(TidyVehicles(dice));
}

}  // namespace wheelwright
