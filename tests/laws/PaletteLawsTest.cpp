// What holds for any sequence of edits of the palette and the pairs.
#include "catalogue/Palette.h"
#include "oracle/AnyDice.h"
#include "oracle/ColorReference.h"
#include "oracle/PaletteModel.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <functional>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

// Names of which some are parts of others, in other case, or empty.
std::string AnyName() {
  return *rc::gen::element<std::string>("Rot", "rot", "Blau", "Hellblau", "Gelb", "o", "", "\xDC", "\xFC");
}

std::string AnyColors() {
  std::string lines;
  for (int colors = *rc::gen::inRange(1, 6); colors > 0; --colors) {
    lines += *rc::gen::element<std::string>("1,2,3", "1,2,3", "255,0,128", "300,-1,7") + "\t# 1 " +
             AnyName() + "\r\n";
  }
  return lines;
}

std::string AnyVehicles() {
  std::string lines;
  for (int vehicles = *rc::gen::inRange(1, 4); vehicles > 0; --vehicles) {
    lines += *rc::gen::element<std::string>("bus", "cab", "Bus");
    for (int pairs = *rc::gen::inRange(1, 5); pairs > 0; --pairs) {
      for (int number : {0, 0}) {
        number = *rc::gen::weightedElement<int>({{6, 0}, {6, 1}, {4, 2}, {2, 4}, {1, 99}, {1, -1}});
        lines += "," + std::to_string(number);
      }
    }
    lines += "\r\n";
  }
  return lines;
}

// A person's step and the same step in the model.
struct Step {
  std::function<void(TestSession&)> byHand;
  std::function<void(PaletteModel&)> inModel;
};

void LeavePalettePage(TestSession& test) {
  test.main.SSTab3.ClickByHand(kPaletteTab);
  test.main.SSTab3.ClickByHand(kPairsTab);
}

Step AnyButton() {
  switch (*rc::gen::weightedElement<int>({{2, 0}, {2, 1}, {4, 2}, {4, 3}, {2, 4}})) {
    case 0:
      return {[](TestSession& test) { test.main.cmdNewColor.ClickByHand(); }, &PaletteModel::AddColor};
    case 1:
      return {[](TestSession& test) { test.main.cmdDeleteColor.ClickByHand(); }, &PaletteModel::DeleteColor};
    case 2:
      return {[](TestSession& test) { test.main.cmdAddColor.ClickByHand(); }, &PaletteModel::AddPair};
    case 3:
      return {[](TestSession& test) { test.main.cmdRemColor.ClickByHand(); }, &PaletteModel::RemovePair};
    default:
      return {LeavePalettePage, &PaletteModel::LeavePalettePage};
  }
}

Step AnyEdit() {
  const auto bar = *rc::gen::inRange<std::size_t>(0, kColorBars.size());
  const int value = *rc::gen::element(0, 7, 128, 255);
  const std::string name = AnyName();
  if (*rc::gen::arbitrary<bool>()) {
    return {[name](TestSession& test) { test.main.txtColorName.EditByHand(name); },
            [name](PaletteModel& model) { model.TypeName(name); }};
  }
  return {[bar, value](TestSession& test) { (test.main.*kColorBars[bar].bar).MoveByHand(value); },
          [bar, value](PaletteModel& model) { model.MoveBar(bar, value); }};
}

using RowClick = void (PaletteModel::*)(int);

// A click on a row; a button's in place of one on a list without rows.
template <class List>
Step Click(const FrmMain& main, List FrmMain::*list, RowClick click) {
  if ((main.*list).Count() == 0) return AnyButton();
  const int row = *rc::gen::inRange(0, (main.*list).Count());
  return {[list, row](TestSession& test) { (test.main.*list).ChooseByHand(row); },
          [click, row](PaletteModel& model) { (model.*click)(row); }};
}

Step AnyClick(const FrmMain& main) {
  switch (*rc::gen::inRange(0, 4)) {
    case 0:
      return Click(main, &FrmMain::lstColors, &PaletteModel::ClickColor);
    case 1:
      return Click(main, &FrmMain::cmbColor1, &PaletteModel::ChooseFirst);
    case 2:
      return Click(main, &FrmMain::cmbColor2, &PaletteModel::ChooseSecond);
    default:
      return Click(main, &FrmMain::lstCarColors, &PaletteModel::ClickPair);
  }
}

Step AnyVehicle(const FrmMain& main) {
  const int row = *rc::gen::inRange(0, main.cmbAutos.Count());
  const std::string vehicle = main.cmbAutos.Rows()[static_cast<std::size_t>(row)];
  return {[row](TestSession& test) { test.main.cmbAutos.ChooseByHand(row); },
          [vehicle](PaletteModel& model) { model.ShowVehicle(vehicle); }};
}

Step AnyStep(const FrmMain& main) {
  switch (*rc::gen::weightedElement<int>({{4, 0}, {2, 1}, {5, 2}, {1, 3}})) {
    case 0:
      return AnyButton();
    case 1:
      return AnyEdit();
    case 2:
      return AnyClick(main);
    default:
      return AnyVehicle(main);
  }
}

Texts LabelsOf(const Table<ColorEntry>& colors) {
  Texts labels;
  for (int at = 0; at < colors.Count(); ++at) labels.push_back(PlainLabel(colors.At(at)));
  return labels;
}

RC_GTEST_PROP(PaletteLaws, EverySequenceOfEditsLeavesWhatThePlainModelHas, ()) {
  TestSession test;
  test.OpenColors(Told("col\r\n" + AnyColors() + "end\r\ncar\r\n" + AnyVehicles() + "end\r\n"));
  RC_ASSERT(test.LastShown() == "normal");
  test.desktop.shown.clear();
  PaletteModel model(RecordsOf(test.vars.Kopie_Colors), RecordsOf(test.vars.Kopie_CarColors),
                     test.main.cmbAutos.Text());
  RC_ASSERT(StateOf(test) == model.State());
  bool everEmpty = false;
  for (int left = *rc::gen::inRange(1, 40); left > 0; --left) {
    const Step step = AnyStep(test.main);
    test.desktop.answers.assign(1, true);
    const int failure = NumberThrownBy([&] { step.byHand(test); });
    RC_ASSERT(failure == NumberThrownBy([&] { step.inModel(model); }));
    RC_ASSERT(StateOf(test) == model.State());
    everEmpty = everEmpty || test.main.lstColors.Count() == 0;
    RC_ASSERT(everEmpty || test.main.lstColors.Rows() == LabelsOf(test.vars.Colors));
    if (failure != 0) return;  // the program has ended
  }
}

}  // namespace
}  // namespace wheelwright::testing
