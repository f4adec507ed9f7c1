#include "editor/ColorPairs.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "gamefiles/FileKinds.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace wheelwright {
namespace {

// The names by Index; of two colours with the same Index the later one counts.
using NamesByIndex = std::unordered_map<std::int16_t, const FieldText*>;

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

using ColorNumbers = std::vector<std::int16_t>;

constexpr int kNotFound = -1;

CarColorEntry& CurrentEntry(Session& session) {
  return session.vars.CarColors.At(session.vars.CurrentCarColor);
}

std::int16_t NumberAt(const ColorNumbers& numbers, int position) {
  if (position < 0 || position >= static_cast<int>(numbers.size())) {
    throw Failure(FailureNumber::SubscriptOutOfRange);
  }
  return numbers[static_cast<std::size_t>(position)];
}

// The position of the pair whose first colour's name the text holds; the last such pair counts. A
// number that no colour bears keeps the colour of the pair before it.
int FindPairByName(const Table<ColorEntry>& colors, const ColorNumbers& firstColors,
                   const std::string& text) {
  std::unordered_map<std::int16_t, int> positions;
  for (int at = 0; at < colors.Count(); ++at) positions[colors.At(at).Index] = at;
  int pair = kNotFound;
  int color = kNotFound;
  for (int i = 0; i < static_cast<int>(firstColors.size()); ++i) {
    const auto found = positions.find(NumberAt(firstColors, i));
    if (found != positions.end()) color = found->second;
    if (HoldsIgnoringCase(text, FoldedCase(colors.At(color).ColorName))) pair = i;
  }
  return pair;
}

// A vehicle can't be without a pair in the table: the place of the last one stays, as 0.
ColorNumbers WithoutPair(const ColorNumbers& numbers, int pair) {
  ColorNumbers kept = numbers;
  kept.erase(kept.begin() + pair);
  if (kept.empty()) kept.push_back(0);
  return kept;
}

}  // namespace

void ShowColorPairs(Session& session) {
  session.main.lstCarColors.Clear();
  const std::string key = session.main.cmbAutos.Text();
  NamesByIndex names;
  for (const ColorEntry& color : session.vars.Colors.Walk()) names[color.Index] = &color.ColorName;
  Table<CarColorEntry>& carColors = session.vars.CarColors;
  for (int i = carColors.First(&CarColorEntry::ModelName, key); i != carColors.kNone; i = carColors.Next(i)) {
    ListPairsOf(session, names, carColors.At(i));
    session.vars.CurrentCarColor = Checked16(i);
  }
}

void RefreshPickLists(Session& session, int leftTab) {
  if (leftTab != kPaletteTab) return;
  FrmMain& main = session.main;
  main.cmbColor1.Clear();
  main.cmbColor2.Clear();
  FillColorPickLists(main);
}

void FillSwatch(Session& session, const PickList& list, Swatch& swatch) {
  const ColorEntry& color = session.vars.Colors.At(list.Row());
  swatch.Fill(color.Red, color.Green, color.Blue);
}

void ShowPair(Session& session) {
  FrmMain& main = session.main;
  const int pair = main.lstCarColors.Row();
  if (main.lstCarColors.Count() < 1) return;
  main.cmbColor1.Choose(NumberAt(CurrentEntry(session).Color1, pair));
  main.cmbColor2.Choose(NumberAt(CurrentEntry(session).Color2, pair));
}

void AddPair(Session& session) {
  FrmMain& main = session.main;
  CarColorEntry& entry = CurrentEntry(session);
  const int first = main.cmbColor1.Row();
  const int second = main.cmbColor2.Row();
  Checked16(entry.Color1.size());
  entry.Color1.push_back(Checked16(first));
  entry.Color2.push_back(Checked16(second));
  const Table<ColorEntry>& colors = session.vars.Colors;
  main.lstCarColors.AddRow(colors.At(first).ColorName + " - " + colors.At(second).ColorName);
  session.vars.IsSaved = false;
}

void RemovePair(Session& session) {
  ListBox& list = session.main.lstCarColors;
  if (list.Row() == RowList::kNoRow) return;
  if (!session.desktop.AskQuestion(Message(session, kRemoveColor))) return;
  CarColorEntry& entry = CurrentEntry(session);
  const int pair = FindPairByName(session.vars.Colors, entry.Color1, list.Text());
  if (pair == kNotFound) return;
  entry.Color1 = WithoutPair(entry.Color1, pair);
  entry.Color2 = WithoutPair(entry.Color2, pair);
  list.RemoveRow(pair);
  if (list.Count() > 0) list.Choose(0);
  session.vars.IsSaved = false;
}

}  // namespace wheelwright
