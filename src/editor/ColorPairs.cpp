#include "core/Numbers.h"
#include "editor/ShowVehicle.h"

#include <string>
#include <unordered_map>

namespace wheelwright {
namespace {

// The names by Index; of two colours with the same Index the later one counts.
using NamesByIndex = std::unordered_map<std::int16_t, const std::string*>;

void LookUp(const NamesByIndex& names, std::int16_t index, std::string& name) {
  if (const auto found = names.find(index); found != names.end()) name = *found->second;
}

void RepairIfNameless(const ColorEntry& firstColor, std::int16_t& index, std::string& name) {
  if (!name.empty()) return;
  index = firstColor.Index;
  name = firstColor.ColorName;
}

// The two names are empty once per entry, not once per pair.
void ListPairsOf(Session& session, const NamesByIndex& names, CarColorEntry& entry) {
  std::string first;
  std::string second;
  for (std::size_t pair = 0; pair < entry.Color1.size(); ++pair) {
    LookUp(names, entry.Color1[pair], first);
    LookUp(names, entry.Color2[pair], second);
    RepairIfNameless(session.vars.Colors.At(0), entry.Color1[pair], first);
    RepairIfNameless(session.vars.Colors.At(0), entry.Color2[pair], second);
    session.main.lstCarColors.AddRow(first + " - " + second);
  }
}

}  // namespace

void ShowColorPairs(Session& session) {
  session.main.lstCarColors.Clear();
  const std::string key = session.main.cmbAutos.Text();
  NamesByIndex names;
  for (const ColorEntry& color : session.vars.Colors.Walk()) names[color.Index] = &color.ColorName;
  Table<CarColorEntry>& carColors = session.vars.CarColors;
  for (int i = carColors.First(&CarColorEntry::ModelName, key); i != carColors.kNone;
       i = carColors.Next(i)) {
    ListPairsOf(session, names, carColors.At(i));
    session.vars.CurrentCarColor = Checked16(i);
  }
}

}  // namespace wheelwright
