// The windows as they are built, against the list of what they must hold.
#include "core/CodePage.h"
#include "screen/ExpectedFields.h"
#include "screen/ExpectedInventory.h"
#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

template <class Kind>
bool Is(const Control& control) {
  return dynamic_cast<const Kind*>(&control) != nullptr;
}

std::string KindOf(const Control& control) {
  if (Is<Label>(control)) return "label";
  if (Is<Frame>(control)) return "frame";
  if (Is<Button>(control)) return "button";
  if (Is<TextBox>(control)) return "text box";
  if (Is<CheckBox>(control)) return "check box";
  if (Is<PickList>(control)) return "pick list";
  if (Is<ListBox>(control)) return "list box";
  if (Is<MarkList>(control)) return "mark list";
  if (Is<ScrollBar>(control)) return "scroll bar";
  if (Is<TabGroup>(control)) return "tab group";
  if (Is<Picture>(control)) return "picture";
  if (Is<Swatch>(control)) return "swatch";
  if (Is<ReportList>(control)) return "report list";
  return "unknown";
}

// What the beginning of an input's name says of its kind.
std::string KindByName(const std::string& name) {
  if (name.starts_with("txt")) return "text box";
  return name.starts_with("cmb") ? "pick list" : "check box";
}

std::string Described(const std::string& name, const std::string& kind, const std::string& container,
                      int page, const std::string& caption) {
  return name + ", " + kind + " in " + container + "/" + std::to_string(page) + ": " + caption;
}

std::string Described(const Control& control) {
  const auto* const captioned = dynamic_cast<const Captioned*>(&control);
  const Control* const container = control.Container();
  return Described(control.Name(), KindOf(control), container == nullptr ? "" : container->Name(),
                   control.Page(), captioned == nullptr ? "" : ToUnicode(captioned->Caption()));
}

Texts Sorted(Texts texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

Texts ControlsOf(const Window& window) {
  Texts controls;
  for (const Control* control : window.Controls()) controls.push_back(Described(*control));
  return Sorted(controls);
}

template <class Table>
void AddControls(const Table& table, Texts& controls) {
  for (const ExpectedControl& control : table) {
    controls.push_back(Described(control.name, control.kind, control.container, control.page,
                                 control.caption == nullptr ? "" : control.caption));
  }
}

void AddRow(const ExpectedRow& row, const char* group, Texts& controls) {
  controls.push_back(Described(row.label, "label", group, row.tab, row.caption));
  controls.push_back(Described(row.input, KindByName(row.input), group, row.tab, ""));
  if (std::string(row.info).empty()) return;
  controls.push_back(Described(row.info, "label", group, row.tab, row.infoCaption));
}

// Every control of the window with the wanted state, by name, in the order of declaration.
Texts NamesWith(const Window& window, bool (*wanted)(const Control&)) {
  Texts names;
  for (const Control* control : window.Controls()) {
    if (wanted(*control)) names.push_back(control->Name());
  }
  return names;
}

bool IsDisabled(const Control& control) { return !control.IsEnabled(); }
bool IsHidden(const Control& control) { return !control.IsVisible(); }

template <class Kind>
std::vector<Kind*> AllOf(const Window& window) {
  std::vector<Kind*> found;
  for (Control* control : window.Controls()) {
    if (auto* const kind = dynamic_cast<Kind*>(control)) found.push_back(kind);
  }
  return found;
}

Texts Translations(const std::string& name, std::span<const Wording> wordings) {
  Texts texts;
  for (const auto& [design, lang] : wordings) {
    texts.push_back(name + std::to_string(texts.size()) + ": " + design + ", " + std::to_string(lang));
  }
  return texts;
}

template <class Table>
void ExpectEntries(const Window& window, const Table& table) {
  for (const ExpectedControl& control : table) {
    const auto* const captioned = dynamic_cast<const Captioned*>(window.Find(control.name));
    if (captioned == nullptr) continue;
    EXPECT_EQ(captioned->Words().lang, control.lang) << control.name;
  }
}

TEST(InventoryTest, TheMainWindowHoldsItsControlsAndNoOthers) {
  Texts expected;
  AddControls(kMainControls, expected);
  for (const auto& field : kExpectedHandlingFields) AddRow(field.shown, "SSTab1", expected);
  for (const auto& field : kExpectedDefinitionFields) AddRow(field.shown, "SSTab2", expected);
  int number = 0;
  for (const char* caption : kFlags) {
    const std::string name = "chkFlag" + std::to_string(++number);
    expected.push_back(Described(name, "check box", "SSTab1", kFlagsTab, caption));
  }
  EXPECT_EQ(ControlsOf(FrmMain()), Sorted(expected));
}

TEST(InventoryTest, TheFlagBoxesStandInTheOrderOfTheirNumbers) {
  const FrmMain main;
  for (std::size_t i = 0; i < kFlags.size(); ++i)
    EXPECT_EQ(main.chkFlag[i].Name(), "chkFlag" + std::to_string(i + 1));
}

TEST(InventoryTest, TheExportWindowHoldsItsControlsAndNoOthers) {
  Texts expected;
  AddControls(kExportControls, expected);
  EXPECT_EQ(ControlsOf(FrmExport()), Sorted(expected));
}

TEST(InventoryTest, TheWindowOfProblemsHoldsItsControlsAndNoOthers) {
  Texts expected;
  AddControls(kErrorControls, expected);
  const FrmError error;
  EXPECT_EQ(ControlsOf(error), Sorted(expected));
  EXPECT_EQ(error.lstErrors.Columns(), (ReportList::Row{"Auto", "Parameter", "Error"}));
}

TEST(InventoryTest, TheWindowsHaveTheirTitlesAndAreNotUpYet) {
  const FrmMain main;
  const FrmError error;
  const FrmExport exporter;
  EXPECT_EQ(main.Title(), "GTAViceCity PC-Version - Wheelwright");
  EXPECT_EQ(error.Title(), "Errors");
  EXPECT_EQ(exporter.Title(), "Export");
  EXPECT_FALSE(main.IsVisible() || error.IsVisible() || exporter.IsVisible());
}

TEST(InventoryTest, WhatNeedsAFileIsDisabledAtFirst) {
  EXPECT_EQ(NamesWith(FrmMain(), IsDisabled), (Texts{"FrameAutos", "cmdSave", "cmdSaveAs", "cmdUndo",
                                                     "cmdBackup", "SSTab1", "SSTab2", "SSTab3"}));
  EXPECT_EQ(NamesWith(FrmError(), IsDisabled), Texts{});
  EXPECT_EQ(NamesWith(FrmExport(), IsDisabled), Texts{});
}

TEST(InventoryTest, TheVehicleListIsDisabledWithItsFrame) {
  const FrmMain main;
  EXPECT_FALSE(main.cmbAutos.IsEnabledHere());
  EXPECT_TRUE(main.cmbSprache.IsEnabledHere());
}

TEST(InventoryTest, TheHandlingTabsAreInFrontAndSomeButtonsAreNeverShown) {
  EXPECT_EQ(NamesWith(FrmMain(), IsHidden),
            (Texts{"SSTab2", "SSTab3", "cmdNewCar", "cmdDeleteCar", "txtExtra1"}));
  EXPECT_EQ(NamesWith(FrmExport(), IsHidden), Texts{"Spez"});
  EXPECT_EQ(NamesWith(FrmError(), IsHidden), Texts{});
}

TEST(InventoryTest, TheTwoInputsOfOneSpotAreNeverBothShown) {
  const FrmMain main;
  EXPECT_NE(main.txtExtra1.IsVisible(), main.cmbExtra1.IsVisible());
}

TEST(InventoryTest, ThePagesOfTheTabGroupsReadAsOnScreen) {
  const FrmMain main;
  EXPECT_EQ(main.SSTab1.Tabs(), (Texts{"Allgemein", "Dimensionen", "Leistung&Antrieb", "Bremsen",
                                       FromUnicode("Aufhängung"), "Flags", "Bild", "Sonstiges"}));
  EXPECT_EQ(main.SSTab2.Tabs(), (Texts{"ID&Referenzen", "Fahrzeug-Eigenschaften", "Bild"}));
  EXPECT_EQ(main.SSTab3.Tabs(), (Texts{"Farbentabelle", "Autotabelle"}));
  for (const TabGroup* group : AllOf<TabGroup>(main)) EXPECT_EQ(group->Tab(), 0);
}

TEST(InventoryTest, ThePagesHaveTheirEntriesOfTheLanguageTable) {
  const FrmMain main;
  Texts tabs;
  for (const TabGroup* group : AllOf<TabGroup>(main)) {
    const Texts texts = Translations(group->Name() + "/", group->Words());
    tabs.insert(tabs.end(), texts.begin(), texts.end());
  }
  EXPECT_EQ(tabs,
            (Texts{"SSTab1/0: Allgemein, 2", "SSTab1/1: Dimensionen, 3", "SSTab1/2: Leistung&&Antrieb, 4",
                   "SSTab1/3: Bremsen, 5", "SSTab1/4: Aufhängung, 6", "SSTab1/5: Flags, 7",
                   "SSTab1/6: Bild, 64", "SSTab1/7: Sonstiges, 62", "SSTab2/0: ID&&Referenzen, 123",
                   "SSTab2/1: Fahrzeug-Eigenschaften, 124", "SSTab2/2: Bild, 64",
                   "SSTab3/0: Farbentabelle, 155", "SSTab3/1: Autotabelle, 156"}));
}

TEST(InventoryTest, EachCaptionHasItsEntryOfTheLanguageTable) {
  ExpectEntries(FrmMain(), kMainControls);
  ExpectEntries(FrmError(), kErrorControls);
  ExpectEntries(FrmExport(), kExportControls);
}

TEST(InventoryTest, TheColumnsOfProblemsHaveTheirEntriesOfTheLanguageTable) {
  EXPECT_EQ(Translations("", FrmError().lstErrors.Words()),
            (Texts{"0: Auto, 107", "1: Parameter, 108", "2: Error, 109"}));
}

TEST(InventoryTest, TheFixedListsHaveTheirEntriesAndAllOthersAreEmpty) {
  std::map<std::string, Texts> entries;
  const FrmMain main;
  for (const RowList* list : AllOf<RowList>(main)) {
    EXPECT_EQ(list->Row(), RowList::kNoRow) << list->Name();
    if (list->Count() > 0) entries[list->Name()] = list->Rows();
  }
  EXPECT_EQ(entries, kEntries);
}

TEST(InventoryTest, OnlyTheListsOfVehiclesSortThemselves) {
  FrmMain main;
  FrmExport exporter;
  Texts sorting;
  for (const Window* window : {static_cast<Window*>(&main), static_cast<Window*>(&exporter)}) {
    for (RowList* list : AllOf<RowList>(*window)) {
      list->Clear();
      list->AddRow("b");
      list->AddRow("a");
      if (list->Rows() == Texts{"a", "b"}) sorting.push_back(list->Name());
    }
  }
  EXPECT_EQ(sorting, (Texts{"cmbAutos", "lst1", "lst2"}));
}

TEST(InventoryTest, OnlyTheListOfVehiclesWantsAChangeToRunItsClick) {
  FrmMain main;
  for (RowList* list : AllOf<RowList>(main)) {
    int runs = 0;
    list->clicked = [&] { ++runs; };
    list->AddRow("a");
    list->Choose(0);
    list->Choose(0);
    EXPECT_EQ(runs, list->Name() == "cmbAutos" ? 1 : 2) << list->Name();
  }
}

TEST(InventoryTest, OnlyTheVehiclesNameIsLimitedAndThatToFourteenCharacters) {
  const FrmMain main;
  for (const TextBox* box : AllOf<TextBox>(main)) {
    const std::size_t longest = box->Name() == "txtAutoname" ? 14 : std::string::npos;
    EXPECT_EQ(box->LongestByHand(), longest) << box->Name();
  }
}

TEST(InventoryTest, AllInputsStartEmpty) {
  const FrmMain main;
  for (const TextBox* box : AllOf<TextBox>(main)) EXPECT_EQ(box->Text(), "") << box->Name();
  for (const CheckBox* box : AllOf<CheckBox>(main)) EXPECT_EQ(box->State(), 0) << box->Name();
  for (const ScrollBar* bar : AllOf<ScrollBar>(main)) EXPECT_EQ(bar->Value(), 0) << bar->Name();
  for (const Picture* picture : AllOf<Picture>(main)) EXPECT_EQ(picture->File(), "");
  EXPECT_EQ(main.CmD1.file, "");
}

}  // namespace
}  // namespace wheelwright::testing
