#include "formats/ExportFile.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "formats/Lines.h"
#include "formats/NameIndex.h"
#include "formats/Sections.h"

#include <unordered_set>

namespace wheelwright {
namespace {

void AddTuningBlock(std::string& out, int position, const Car& car) {
  const std::string record = "Kopie_Cars(" + std::to_string(position) + ").";
  const auto assign = [&](const char* field, const std::string& value) {
    AddLine(out, record + field + " = \"" + value + "\"");
  };
  AddLine(out, "'" + car.CarName);
  assign("CarName", car.CarName);
  assign("SuspensionForceLevel", car.SuspensionForceLevel);
  assign("SuspensionDampingLevel", car.SuspensionDampingLevel);
  assign("suspension_upper_limit", car.suspension_upper_limit);
  assign("suspension_lower_limit", car.suspension_lower_limit);
  AddLine(out, record + "IsSportCar = False");
  AddLine(out, "");
  AddLine(out, "");
}

}  // namespace

std::string ExportHeader(const WrittenVehicles& vehicles) {
  std::string header = Banner(';').Text();
  AddLine(header, "; Author: " + vehicles.author);
  AddLine(header, "; Created " + vehicles.created);
  for (const std::string_view line : {";", "; > COMMENTS <", "; ------------", "; TWEAK AT YOUR OWN RISK",
                                      ";", "; > THE DATA <", "; ------------", ";"}) {
    AddLine(header, line);
  }
  return header;
}

std::string WriteExport(const WrittenVehicles& vehicles) {
  std::string text = ExportHeader(vehicles);
  ForEachNamedVehicle(vehicles, [&](int /*position*/, const Car& car) { AddVehicleLine(text, car); });
  AddLine(text, ";");
  AddLine(text, ";the end");
  return text;
}

std::string WriteTuningList(const WrittenVehicles& vehicles) {
  std::string text;
  ForEachNamedVehicle(vehicles, [&](int position, const Car& car) { AddTuningBlock(text, position, car); });
  return text;
}

std::vector<std::string> NewNamesIn(std::string_view text, const std::vector<std::string>& known) {
  std::unordered_set<std::string> all(known.begin(), known.end());
  std::vector<std::string> names;
  for (const std::string_view line : Lines(text)) {
    const std::string_view head = HeadOf(line);
    if (line.size() <= kHeadColumns || head.find(';') != std::string_view::npos) continue;
    const std::string name(TrimBlanks(head));
    if (all.insert(name).second) names.push_back(name);
  }
  return names;
}

// The first record of a line cleans it, so the names behind that one in the list are compared with
// its single-blank form.
void ReadExport(std::string_view text, const std::vector<std::string>& names, Table<Car>& cars,
                LineProblems& problems) {
  NameIndex index(names);
  std::int16_t next = Checked16(cars.UpperBound() + 1);
  const auto addRecord = [&](const SpaceLine& line) {
    cars.ExtendTo(next);
    ReadVehicleLine(line, cars.At(next), problems);
    next = Checked16(next + 1);
  };
  for (const std::string_view line : Lines(text)) {
    const std::vector<NameHit>& hits = index.Beginning(line);
    if (hits.empty()) continue;
    const int firstHit = hits.front().position;
    const SpaceLine tokens(line);
    addRecord(tokens);
    const std::string cleaned = CleanedLine(line);
    for (const NameHit& hit : index.Beginning(cleaned)) {
      if (hit.position > firstHit) addRecord(tokens);
    }
  }
}

}  // namespace wheelwright
