#include "editor/ColorPairs.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "gamefiles/FileKinds.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

// Of two colours with the same Index the later one counts.
using ColorsByIndex = std::unordered_map<std::int16_t, const ColorEntry*>;

Rgb ShownColor(const ColorEntry& color) {
  constexpr std::int16_t kMost = 255;
  const auto cut = [](std::int16_t part) { return std::clamp<int>(part, 0, kMost); };
  return {cut(color.Red), cut(color.Green), cut(color.Blue)};
}

void ListPair(ListBox& list, const ColorEntry& first, const ColorEntry& second) {
  list.swatches.push_back({ShownColor(first), ShownColor(second)});
  list.AddRow(Concatenated({first.ColorName, " - ", second.ColorName}));
}

void LookUp(const ColorsByIndex& colors, std::int16_t index, const ColorEntry*& color) {
  if (const auto found = colors.find(index); found != colors.end()) color = found->second;
}

void RepairIfNameless(const ColorEntry& firstColor, std::int16_t& index, const ColorEntry*& color) {
  if (color != nullptr && !color->ColorName.empty()) return;
  index = firstColor.Index;
  color = &firstColor;
}

// The two colours are none once per entry, not once per pair.
void ListPairsOf(Session& session, const ColorsByIndex& colors, CarColorEntry& entry) {
  const ColorEntry& firstColor = std::as_const(session.vars.Colors).At(0);
  const ColorEntry* first = nullptr;
  const ColorEntry* second = nullptr;
  for (ColorPair& pair : entry.Pairs) {
    LookUp(colors, pair.Color1, first);
    LookUp(colors, pair.Color2, second);
    RepairIfNameless(firstColor, pair.Color1, first);
    RepairIfNameless(firstColor, pair.Color2, second);
    ListPair(session.main.lstCarColors, *first, *second);
  }
}

constexpr int kNotFound = -1;

CarColorEntry& CurrentEntry(Session& session) {
  return session.vars.CarColors.At(session.vars.CurrentCarColor);
}

ColorPair PairAt(const CarColorEntry& entry, int position) {
  if (position < 0 || position >= static_cast<int>(entry.Pairs.size())) {
    throw Failure(FailureNumber::SubscriptOutOfRange);
  }
  return entry.Pairs[static_cast<std::size_t>(position)];
}

// The position of the pair whose first colour's name the text holds; the last such pair counts. A
// number that no colour bears keeps the colour of the pair before it.
int FindPairByName(const Table<ColorEntry>& colors, const CarColorEntry& entry, const std::string& text) {
  std::unordered_map<std::int16_t, int> positions;
  for (int at = 0; at < colors.Count(); ++at) positions[colors.At(at).Index] = at;
  int pair = kNotFound;
  int color = kNotFound;
  for (int i = 0; i < static_cast<int>(entry.Pairs.size()); ++i) {
    const auto found = positions.find(PairAt(entry, i).Color1);
    if (found != positions.end()) color = found->second;
    if (HoldsIgnoringCase(text, FoldedCase(colors.At(color).ColorName))) pair = i;
  }
  return pair;
}

// A vehicle can't be without a pair in the table: the place of the last one stays, as 0.
void TakeOut(std::vector<ColorPair>& pairs, int position) {
  pairs.erase(pairs.begin() + position);
  if (pairs.empty()) pairs.emplace_back();
}

}  // namespace

void ShowColorPairs(Session& session) {
  session.main.lstCarColors.Clear();
  session.main.lstCarColors.swatches.clear();
  const std::string key = session.main.cmbAutos.Text();
  ColorsByIndex colors;
  for (const ColorEntry& color : session.vars.Colors.Walk()) colors[color.Index] = &color;
  Table<CarColorEntry>& carColors = session.vars.CarColors;
  for (int i = carColors.First(&CarColorEntry::ModelName, key); i != carColors.kNone; i = carColors.Next(i)) {
    ListPairsOf(session, colors, carColors.At(i));
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
  const ColorEntry& color = std::as_const(session.vars.Colors).At(list.Row());
  swatch.Fill(color.Red, color.Green, color.Blue);
}

void ShowPair(Session& session) {
  FrmMain& main = session.main;
  const int pair = main.lstCarColors.Row();
  if (main.lstCarColors.Count() < 1) return;
  main.cmbColor1.Choose(PairAt(CurrentEntry(session), pair).Color1);
  main.cmbColor2.Choose(PairAt(CurrentEntry(session), pair).Color2);
}

void AddPair(Session& session) {
  FrmMain& main = session.main;
  CarColorEntry& entry = CurrentEntry(session);
  const int first = main.cmbColor1.Row();
  const int second = main.cmbColor2.Row();
  Checked16(entry.Pairs.size());
  entry.Pairs.push_back({Checked16(first), Checked16(second)});
  const Table<ColorEntry>& colors = session.vars.Colors;
  ListPair(main.lstCarColors, colors.At(first), colors.At(second));
  session.vars.IsSaved = false;
}

void RemovePair(Session& session) {
  ListBox& list = session.main.lstCarColors;
  if (list.Row() == RowList::kNoRow) return;
  if (!session.desktop.AskQuestion(Message(session, kRemoveColor))) return;
  CarColorEntry& entry = CurrentEntry(session);
  const int pair = FindPairByName(session.vars.Colors, entry, list.Text());
  if (pair == kNotFound) return;
  TakeOut(entry.Pairs, pair);
  list.RemoveRow(pair);
  list.swatches.erase(list.swatches.begin() + pair);
  if (list.Count() > 0) list.Choose(0);
  session.vars.IsSaved = false;
}

}  // namespace wheelwright
