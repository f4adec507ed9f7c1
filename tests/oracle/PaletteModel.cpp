#include "oracle/PaletteModel.h"

#include "core/Failure.h"
#include "core/Text.h"
#include "oracle/ColorReference.h"
#include "support/TableTexts.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

constexpr std::array<std::int16_t ColorEntry::*, 3> kComponents = {&ColorEntry::Red, &ColorEntry::Green,
                                                                   &ColorEntry::Blue};

void CheckPosition(int position, std::size_t size, FailureNumber failure) {
  if (position < 0 || static_cast<std::size_t>(position) >= size) throw Failure(failure);
}

std::string Lines(const char* heading, const Texts& texts) {
  std::string lines = heading;
  for (const std::string& text : texts) lines += "\n  " + text;
  return lines + "\n";
}

}  // namespace

PaletteModel::PaletteModel(std::vector<ColorEntry> itsColors, std::vector<CarColorEntry> itsCarColors,
                           const std::string& vehicle)
    : colors_(std::move(itsColors)), carColors_(std::move(itsCarColors)) {
  for (const ColorEntry& color : colors_) colorRows.push_back(PlainLabel(color));
  LeavePalettePage();
  ShowVehicle(vehicle);
}

ColorEntry& PaletteModel::ColorAt(int position) {
  CheckPosition(position, colors_.size(), FailureNumber::SubscriptOutOfRange);
  return colors_[static_cast<std::size_t>(position)];
}

void PaletteModel::ShowVehicle(const std::string& vehicle) {
  pairRows.clear();
  pairRow_ = -1;
  for (std::size_t index = 0; index < carColors_.size(); ++index) {
    if (carColors_[index].ModelName != vehicle) continue;
    const Texts rows = ShowPairsPlainly(colors_, carColors_[index]);
    pairRows.insert(pairRows.end(), rows.begin(), rows.end());
    current_ = static_cast<int>(index);
  }
}

void PaletteModel::ClickColor(int row) {
  colorRow_ = row;
  ShowChosenColor();
}

void PaletteModel::ShowChosenColor() {
  if (colorRows.empty() || colorRow_ == -1) return;
  TypeName(ColorAt(colorRow_).ColorName);
  for (std::size_t bar = 0; bar < 3; ++bar) {
    const std::int16_t component = ColorAt(colorRow_).*kComponents[bar];
    MoveBar(bar, component);
    if (ColorAt(colorRow_).*kComponents[bar] == component) continue;
    ColorAt(colorRow_).*kComponents[bar] = component;
    Relabel();
  }
}

void PaletteModel::Relabel() {
  colorRows[static_cast<std::size_t>(colorRow_)] = PlainLabel(ColorAt(colorRow_));
}

void PaletteModel::MoveBar(std::size_t bar, int value) {
  value = std::max(0, std::min(255, value));
  if (bars_[bar] == value) return;
  bars_[bar] = value;
  if (colorRows.empty() && colorRow_ == -1) return;
  ColorAt(colorRow_).*kComponents[bar] = static_cast<std::int16_t>(value);
  isSaved_ = false;
  Relabel();
}

void PaletteModel::TypeName(const std::string& text) {
  if (name_ == text) return;
  name_ = text;
  if (colorRows.empty() && colorRow_ == -1) return;
  ColorAt(colorRow_).ColorName = text;
  isSaved_ = false;
  Relabel();
}

void PaletteModel::AddColor() {
  const std::string name = "Color" + std::to_string(colors_.size());
  colors_.push_back({static_cast<std::int16_t>(colorRows.size()), 0, 128, 255, name});
  colorRows.push_back(PlainLabel(colors_.back()));
  ClickColor(static_cast<int>(colorRows.size()) - 1);
  isSaved_ = false;
  shown_.push_back("information: E154");
}

void PaletteModel::DeleteColor() {
  if (colorRow_ == -1 && colorRows.empty()) return;
  shown_.push_back("question: E153");
  if (colorRow_ == -1) {
    shown_.push_back("error: Error: 9 - Subscript out of range");
    return;
  }
  for (CarColorEntry& entry : carColors_) {
    for (auto& [first, second] : entry.Pairs) {
      if (first == ColorAt(colorRow_).Index) first = 0;
      if (second == ColorAt(colorRow_).Index) second = 0;
    }
  }
  colors_.erase(colors_.begin() + colorRow_);
  if (colors_.empty()) colors_.resize(1);
  colorRows.erase(colorRows.begin() + colorRow_);
  colorRow_ = -1;
  if (!colorRows.empty()) ClickColor(0);
  isSaved_ = false;
}

void PaletteModel::LeavePalettePage() {
  pickRows = colorRows;
  firstRow_ = -1;
  secondRow_ = -1;
  ChooseFirst(0);
  ChooseSecond(0);
}

void PaletteModel::ChooseFirst(int row) {
  CheckPosition(row, pickRows.size(), FailureNumber::InvalidPropertyValue);
  firstRow_ = row;
  ColorAt(row);
}

void PaletteModel::ChooseSecond(int row) {
  CheckPosition(row, pickRows.size(), FailureNumber::InvalidPropertyValue);
  secondRow_ = row;
  ColorAt(row);
}

void PaletteModel::ClickPair(int row) {
  pairRow_ = row;
  CheckPosition(row, Current().Pairs.size(), FailureNumber::SubscriptOutOfRange);
  ChooseFirst(Current().Pairs[static_cast<std::size_t>(row)].Color1);
  ChooseSecond(Current().Pairs[static_cast<std::size_t>(row)].Color2);
}

void PaletteModel::AddPair() {
  Current().Pairs.push_back({static_cast<std::int16_t>(firstRow_), static_cast<std::int16_t>(secondRow_)});
  pairRows.push_back(ColorAt(firstRow_).ColorName + " - " + ColorAt(secondRow_).ColorName);
  isSaved_ = false;
}

void PaletteModel::RemovePair() {
  if (pairRows.empty() || pairRow_ == -1) return;
  shown_.push_back("question: E153");
  const std::string text = FoldedCase(pairRows[static_cast<std::size_t>(pairRow_)]);
  std::vector<ColorPair>& pairs = Current().Pairs;
  int a = -1;
  int b = -1;
  for (int i = 0; i < static_cast<int>(pairs.size()); ++i) {
    for (std::size_t color = 0; color < colors_.size(); ++color) {
      const bool bears = colors_[color].Index == pairs[static_cast<std::size_t>(i)].Color1;
      if (bears) b = static_cast<int>(color);
    }
    if (text.find(FoldedCase(ColorAt(b).ColorName)) != std::string::npos) a = i;
  }
  if (a == -1 || b == -1) return;
  pairs.erase(pairs.begin() + a);
  if (pairs.empty()) pairs.resize(1);
  CheckPosition(a, pairRows.size(), FailureNumber::InvalidCall);
  pairRows.erase(pairRows.begin() + a);
  pairRow_ = a == pairRow_ ? -1 : pairRow_ - (a < pairRow_ ? 1 : 0);
  if (!pairRows.empty()) ClickPair(0);
  isSaved_ = false;
}

std::string PaletteModel::State() const {
  Texts colors;
  for (const ColorEntry& color : colors_) colors.push_back(TextOf(color));
  Texts vehicles;
  for (const CarColorEntry& entry : carColors_) vehicles.push_back(TextOf(entry));
  return Lines("colours", colors) + Lines("rows", colorRows) + Lines("vehicles", vehicles) +
         Lines("pairs", pairRows) + Lines("offered", pickRows) + Lines("shown", shown_) +
         Lines("chosen and current",
               {std::to_string(colorRow_), std::to_string(pairRow_), std::to_string(firstRow_),
                std::to_string(secondRow_), std::to_string(current_)}) +
         Lines("name and bars",
               {name_, std::to_string(bars_[0]), std::to_string(bars_[1]), std::to_string(bars_[2])}) +
         (isSaved_ ? "saved" : "pending");
}

std::string StateOf(const TestSession& test) {
  const FrmMain& main = test.main;
  const bool offerTheSame = main.cmbColor1.Rows() == main.cmbColor2.Rows();
  return Lines("colours", TextsOf(test.vars.Colors)) + Lines("rows", main.lstColors.Rows()) +
         Lines("vehicles", TextsOf(test.vars.CarColors)) + Lines("pairs", main.lstCarColors.Rows()) +
         Lines("offered", offerTheSame ? main.cmbColor1.Rows() : Texts{"not the same in both"}) +
         Lines("shown", test.desktop.shown) +
         Lines("chosen and current",
               {std::to_string(main.lstColors.Row()), std::to_string(main.lstCarColors.Row()),
                std::to_string(main.cmbColor1.Row()), std::to_string(main.cmbColor2.Row()),
                std::to_string(test.vars.CurrentCarColor)}) +
         Lines("name and bars",
               {main.txtColorName.Text(), std::to_string(main.HScroll1.Value()),
                std::to_string(main.HScroll2.Value()), std::to_string(main.HScroll3.Value())}) +
         (test.vars.IsSaved ? "saved" : "pending");
}

}  // namespace wheelwright::testing
