// Displays, reverts, and the vehicles that come and go.
#include "oracle/ColorReference.h"
#include "soak/Moment.h"

#include <algorithm>

namespace wheelwright::soak {
namespace {

template <class Record>
std::size_t FirstNamed(const std::vector<Record>& records, FieldText Record::*key, const std::string& text) {
  const auto named = [&](const Record& record) { return record.*key == text; };
  const auto found = std::find_if(records.begin(), records.end(), named);
  return found == records.end() ? 0 : static_cast<std::size_t>(found - records.begin());
}

std::vector<std::string> DisplayPairs(Tables& tables, const std::string& key) {
  std::vector<std::string> rows;
  for (CarColorEntry& entry : tables.carColors) {
    if (entry.ModelName != key) continue;
    const std::vector<std::string> shown = testing::ShowPairsPlainly(tables.colors, entry);
    rows.insert(rows.end(), shown.begin(), shown.end());
  }
  return rows;
}

std::vector<std::string> KeysOf(const Tables& tables, int fileType) {
  std::vector<std::string> keys;
  if (fileType == kHandlingFile) {
    for (const Car& car : tables.cars) keys.push_back(car.CarName);
  } else if (fileType == kDefinitionFile) {
    for (const IdeEntry& entry : tables.ides) keys.push_back(entry.HandlingID);
  } else {
    for (const CarColorEntry& entry : tables.carColors) keys.push_back(entry.ModelName);
  }
  return SortedAsInLists(std::move(keys));
}

}  // namespace

void Display(Car& car) {
  if (car.ABS.empty()) car.ABS = "0";
  while (car.ModelFlags.size() < kFlagDigits) car.ModelFlags = '0' + std::string(car.ModelFlags);
}

void CheckDisplay(const Moment& moment, Tables expected) {
  const Vars& vars = moment.session.vars;
  const std::string key = moment.session.main.cmbAutos.Text();
  if (vars.CurrentFileType == kHandlingFile) {
    const std::size_t index = FirstNamed(expected.cars, &Car::CarName, key);
    Require(vars.CurrentCar == static_cast<int>(index), "CurrentCar isn't the chosen vehicle");
    Display(expected.cars.at(index));
  } else if (vars.CurrentFileType == kDefinitionFile) {
    const std::size_t index = FirstNamed(expected.ides, &IdeEntry::HandlingID, key);
    Require(vars.CurrentIde == static_cast<int>(index), "CurrentIde isn't the chosen vehicle");
  } else {
    const std::vector<std::string> rows = DisplayPairs(expected, key);
    Require(moment.session.main.lstCarColors.Rows() == rows, "lstCarColors isn't the vehicle's pairs");
  }
  Require(moment.after.working == expected, "a display has changed the tables");
}

void CheckRevert(const Moment& moment) {
  const SessionState& after = moment.after;
  Tables expected = moment.before.working;
  const Tables& snapshot = moment.before.snapshot;
  if (after.fileType == kHandlingFile) expected.cars = snapshot.cars;
  if (after.fileType == kDefinitionFile) expected.ides = snapshot.ides;
  if (after.fileType == kColorFile) {
    expected.colors = snapshot.colors;
    expected.carColors = snapshot.carColors;
  }
  Require(after.isSaved == moment.before.isSaved, "a revert has changed IsSaved");
  Require(after.vehicles == KeysOf(expected, after.fileType), "cmbAutos isn't the snapshot's keys");
  Require(moment.session.main.cmbAutos.Row() == 0, "a revert doesn't show the first vehicle");
  CheckDisplay(moment, std::move(expected));
}

void CheckAddedVehicle(const Moment& moment) {
  const std::vector<Car>& cars = moment.after.working.cars;
  const std::size_t count = moment.before.working.cars.size() + 1;
  Require(cars.size() == count, "a new vehicle isn't one more record");
  Require(cars.back().CarName == "NEWCAR" + std::to_string(count), "a new vehicle has another name");
  Require(moment.after.vehicles.size() == moment.before.vehicles.size() + 1,
          "a new vehicle isn't one more row");
  Require(!moment.after.isSaved, "IsSaved after a new vehicle");
}

void CheckDeletedVehicle(const Moment& moment) {
  Require(moment.after.vehicles.size() + 1 == moment.before.vehicles.size(),
          "a deleted vehicle isn't one row less");
  Require(!moment.after.isSaved, "IsSaved after a deletion");
  Require(moment.session.main.cmbAutos.Row() == 0, "a deletion doesn't show the first vehicle");
}

}  // namespace wheelwright::soak
