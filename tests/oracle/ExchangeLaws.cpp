#include "formats/ExportFile.h"
#include "oracle/ExchangeReference.h"
#include "oracle/FormatLaws.h"
#include "oracle/Law.h"
#include "support/TableRecords.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <set>

namespace wheelwright::testing {
namespace {

// The records that the names stand for, as often as imported names begin theirs.
std::vector<Car> RecordsOfNames(const PlainVehicles& vehicles) {
  const std::set<std::string> imported(vehicles.names.begin(), vehicles.names.end());
  std::vector<Car> records;
  for (const std::string& name : vehicles.names) {
    for (Car car : vehicles.cars) {
      if (car.CarName != name) continue;
      car.LineKind = kOrdinaryVehicle;
      for (const std::string& beginning : imported) {
        if (name.starts_with(beginning)) records.push_back(car);
      }
    }
  }
  return records;
}

}  // namespace

void RequireImported(const std::string& text, const std::vector<std::string>& rows,
                     const std::vector<Car>& cars) {
  const PlainImport plain = ImportPlainly(text, rows, cars);
  Require(NewNamesIn(text, rows) == plain.newNames, "names that the list lacks are new");
  Table<Car> table = TableOf(cars);
  LineProblems problems;
  const int failure = NumberThrownBy([&] { ReadExport(text, plain.rows, table, problems); });
  Require(failure == (cars.empty() ? 9 : 0), "an import fails without a table");
  if (failure != 0) return Require(!table.IsAllocated(), "a failed import makes no table");
  Require(RecordsOf(table) == plain.cars, "the records are those of a plain walk");
  Require(problems == plain.problems, "the problems are those of a plain walk");
}

void RequireExported(const PlainVehicles& vehicles) {
  const Table<Car> cars = TableOf(vehicles.cars);
  RequireSameText(WriteExport({vehicles.names, cars, vehicles.author, vehicles.created}),
                  ExportPlainly(vehicles), "an export writes what plain writing writes");
}

void RequireExportComesBack(const PlainVehicles& vehicles) {
  const Table<Car> cars = TableOf(vehicles.cars);
  const std::string file = WriteExport({vehicles.names, cars, vehicles.author, vehicles.created});
  const PlainImport plain = ImportPlainly(file, {"~"}, {CarOf(GoodTokens("~"))});
  Table<Car> others = TableOf(std::vector<Car>{CarOf(GoodTokens("~"))});
  LineProblems problems;
  ReadExport(file, plain.rows, others, problems);
  const std::vector<Car> records = RecordsOf(others);
  Require(std::vector<Car>(records.begin() + 1, records.end()) == RecordsOfNames(vehicles),
          "exported vehicles come back with all their texts");
}

}  // namespace wheelwright::testing
