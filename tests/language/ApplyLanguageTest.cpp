// Which entry of the language table stands where on screen.
#include "language/LanguageFiles.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <map>

namespace wheelwright::testing {
namespace {

// Everything on screen that can bear a text, by its place: "lblABS", "cmbMotor row 0", "SSTab1 tab
// 0", "lstErrors column 0"; the controls of another window than the main one with its name in
// front.
using Screen = std::map<std::string, std::string>;

void AddNumbered(Screen& screen, const std::string& place, const std::vector<std::string>& texts) {
  int number = 0;
  for (const std::string& text : texts) screen[place + std::to_string(number++)] = text;
}

void AddControl(Screen& screen, const std::string& name, const Control& control) {
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control)) screen[name] = captioned->Caption();
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) screen[name] = box->Text();
  if (const auto* list = dynamic_cast<const RowList*>(&control))
    AddNumbered(screen, name + " row ", list->Rows());
  if (const auto* tabs = dynamic_cast<const TabGroup*>(&control))
    AddNumbered(screen, name + " tab ", tabs->Tabs());
  if (const auto* report = dynamic_cast<const ReportList*>(&control))
    AddNumbered(screen, name + " column ", {report->Columns().begin(), report->Columns().end()});
}

void AddWindow(Screen& screen, const std::string& prefix, const Window& window) {
  screen[window.Name()] = window.Title();
  for (const Control* control : window.Controls()) AddControl(screen, prefix + control->Name(), *control);
}

Screen ScreenOf(const TestSession& s) {
  Screen screen;
  AddWindow(screen, "", s.main);
  AddWindow(screen, "frmError.", s.error);
  AddWindow(screen, "frmExport.", s.exporter);
  return screen;
}

// Where each entry stands. An entry that isn't here stands nowhere.
const std::multimap<int, std::string> kPlaces = {
    {0, "FrameSprache"},
    {1, "FrameAutos"},
    {2, "SSTab1 tab 0"},
    {3, "SSTab1 tab 1"},
    {4, "SSTab1 tab 2"},
    {5, "SSTab1 tab 3"},
    {6, "SSTab1 tab 4"},
    {7, "SSTab1 tab 5"},
    {8, "cmdOpen"},
    {9, "cmdSave"},
    {10, "cmdBackup"},
    {11, "cmdEnde"},
    {15, "lblAutoname"},
    {16, "lblAutonameInfo"},
    {17, "lblGewicht"},
    {18, "lblGewichtInfo"},
    {19, "lblBreite"},
    {20, "lblBreiteInfo"},
    {21, "lblHoehe"},
    {22, "lblHoeheInfo"},
    {23, "lblLaenge"},
    {24, "lblLaengeInfo"},
    {25, "lblMassenmittelpX"},
    {26, "lblMassenmittelpXInfo"},
    {27, "lblMassenmittelpY"},
    {28, "lblMassenmittelpYInfo"},
    {29, "lblMassenmittelpZ"},
    {30, "lblMassenmittelpZInfo"},
    {31, "lblSubMerged"},
    {32, "lblSubMergedInfo"},
    {33, "lblTractionMulti"},
    {34, "lblTractionMultiInfo"},
    {35, "lblTractionLoss"},
    {36, "lblTractionLossInfo"},
    {37, "lblTractionBias"},
    {38, "lblTractionBiasInfo"},
    {39, "lblGaenge"},
    {40, "lblGaengeInfo"},
    {41, "lblGeschwindigkeit"},
    {42, "lblGeschwindigkeitInfo"},
    {43, "lblBeschleunigung"},
    {44, "lblBeschleunigungInfo"},
    {45, "lblAntrieb"},
    {46, "cmbAntrieb row 0"},
    {47, "cmbAntrieb row 1"},
    {48, "cmbAntrieb row 2"},
    {49, "lblMotorTyp"},
    {50, "cmbMotor row 0"},
    {51, "cmbMotor row 1"},
    {52, "cmbMotor row 2"},
    {53, "lblBremsstaerke"},
    {54, "lblBremsstaerkeInfo"},
    {55, "lblBrakeBias"},
    {56, "lblBrakeBiasInfo"},
    {57, "lblABS"},
    {58, "lblRadeinschlag"},
    {59, "lblRadeinschlagInfo"},
    {62, "SSTab1 tab 7"},
    {64, "SSTab1 tab 6"},
    {64, "SSTab2 tab 2"},
    {65, "lblKraftlevel"},
    {66, "lblKraftlevelInfo"},
    {67, "lblDLevel"},
    {68, "lblDLevelInfo"},
    {69, "lblOLimit"},
    {70, "lblOLimitInfo"},
    {71, "lblULimit"},
    {72, "lblULimitInfo"},
    {73, "lblBias"},
    {74, "lblBiasInfo"},
    {75, "lblPedSeat"},
    {76, "lblPedSeatInfo"},
    {77, "lblKoll"},
    {78, "lblKollInfo"},
    {79, "lblPreis"},
    {80, "lblPreisInfo"},
    {81, "lblFrontLichter"},
    {82, "cmbFrontLichter row 0"},
    {83, "cmbFrontLichter row 1"},
    {84, "cmbFrontLichter row 2"},
    {85, "cmbFrontLichter row 3"},
    {86, "lblRearLichter"},
    {87, "cmbRearLichter row 0"},
    {88, "cmbRearLichter row 1"},
    {89, "cmbRearLichter row 2"},
    {90, "cmbRearLichter row 3"},
    {93, "cmdNewCar"},
    {94, "cmdDeleteCar"},
    {95, "cmdImportCar"},
    {96, "cmdExportCar"},
    {97, "cmdUndo"},
    {100, "frameAuthor"},
    {101, "frameDate"},
    {106, "frmError.cmdClose"},
    {106, "frmExport.cmdClose"},
    {107, "frmError.lstErrors column 0"},
    {108, "frmError.lstErrors column 1"},
    {109, "frmError.lstErrors column 2"},
    {110, "frmExport.lblExportCar"},
    {111, "frmExport.lblExport"},
    {112, "frmExport.cmdExport"},
    {119, "cmdSaveAs"},
    {120, "cmdHelp"},
    {123, "SSTab2 tab 0"},
    {124, "SSTab2 tab 1"},
    {125, "lblID"},
    {126, "lblIDInfo"},
    {127, "lblHandlingID"},
    {128, "lblHandlingIDInfo"},
    {129, "lblModelName"},
    {130, "lblModelNameInfo"},
    {131, "lblTXDName"},
    {132, "lblTXDNameInfo"},
    {133, "lblGameName"},
    {134, "lblGameNameInfo"},
    {135, "lblTyp"},
    {136, "lblTypInfo"},
    {137, "lblKlasse"},
    {138, "lblKlasseInfo"},
    {139, "lblFrequenz"},
    {140, "lblFrequenzInfo"},
    {141, "lblLevel"},
    {142, "lblLevelInfo"},
    {143, "lblCompRules"},
    {144, "lblCompRulesInfo"},
    {145, "lblExtra1"},
    {146, "lblExtra1Info"},
    {148, "lblExtra2"},
    {149, "lblExtra2Info"},
    {155, "SSTab3 tab 0"},
    {156, "SSTab3 tab 1"},
    {157, "cmdNewColor"},
    {158, "cmdDeleteColor"},
    {159, "lblColorName"},
    {160, "lblRot"},
    {161, "lblGrün"},
    {162, "lblBlau"},
    {163, "frameAddColors"},
    {164, "lblColor1"},
    {165, "lblColor2"},
    {166, "cmdAddColor"},
    {167, "frameColors"},
    {168, "cmdRemColor"},
    {178, "lblDive"},
    {179, "lblDiveInfo"},
    {180, "lblAnim"},
    {181, "lblAnimInfo"},
};

// The entries that other operations read at the moment of showing them, and those that are free.
const std::vector<std::pair<int, int>> kWithoutPlace = {{12, 14},   {60, 61},   {63, 63},   {91, 92},
                                                        {98, 99},   {102, 105}, {113, 118}, {121, 122},
                                                        {147, 147}, {150, 154}, {169, 177}, {182, 220}};

void FillLang(TestSession& s, const std::string& text) { s.vars.Lang.fill(text); }

TEST(ApplyLanguage, EachEntryStandsWhereItBelongsAndNowhereElse) {
  TestSession s;
  FillLang(s, "old");
  ApplyLanguage(s.session);
  Screen expected = ScreenOf(s);
  for (int entry = 0; entry < Vars::kLangEntries; ++entry) {
    s.vars.Lang[static_cast<std::size_t>(entry)] = LangText(entry);
    ApplyLanguage(s.session);
    const auto [first, last] = kPlaces.equal_range(entry);
    for (auto place = first; place != last; ++place) {
      ASSERT_TRUE(expected.contains(place->second)) << place->second;
      expected[place->second] = LangText(entry);
    }
    ASSERT_EQ(ScreenOf(s), expected) << "entry " << entry;
  }
}

TEST(ApplyLanguage, TheListOfPlacesLeavesOutWhatStandsNowhere) {
  std::vector<int> without;
  for (int entry = 0; entry < Vars::kLangEntries; ++entry) {
    if (!kPlaces.contains(entry)) without.push_back(entry);
  }
  std::vector<int> expected;
  for (const auto& [first, last] : kWithoutPlace) {
    for (int entry = first; entry <= last; ++entry) expected.push_back(entry);
  }
  EXPECT_EQ(without, expected);
}

TEST(ApplyLanguage, AnEmptyEntryMakesItsCaptionEmpty) {
  TestSession s;
  FillLang(s, "");
  ApplyLanguage(s.session);
  const Screen screen = ScreenOf(s);
  for (const auto& [entry, place] : kPlaces) EXPECT_EQ(screen.at(place), "") << place;
}

TEST(ApplyLanguage, FixedWordsStayInEveryLanguage) {
  TestSession s;
  FillLang(s, "foreign");
  ApplyLanguage(s.session);
  EXPECT_EQ(s.main.cmdInfo.Caption(), "Info");
  EXPECT_EQ(s.main.Title(), "GTAViceCity PC-Version - Wheelwright");
  EXPECT_EQ(s.error.Title(), "Errors");
  EXPECT_EQ(s.exporter.Title(), "Export");
  EXPECT_EQ(s.main.chkFlag[0].Caption(), "1G_BOOST");
  EXPECT_EQ(s.main.chkFlag[27].Caption(), "Undefined");
  EXPECT_EQ(s.main.cmbTyp.Rows()[0], "car");
  EXPECT_EQ(s.main.lblRotWert.Caption(), "0");
  EXPECT_EQ(s.exporter.cmdAddAll.Caption(), ">>");
}

TEST(ApplyLanguage, NoChoiceChangesAndNoHandlerRuns) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO")}));
  s.main.cmbAntrieb.ChooseByHand(2);
  s.main.cmbMotor.ChooseByHand(1);
  s.main.cmbFrontLichter.ChooseByHand(3);
  s.main.cmbRearLichter.ChooseByHand(2);
  s.vars.IsSaved = true;
  const std::vector<Car> before = RecordsOf(s.vars.Cars);
  FillLang(s, "foreign");
  ApplyLanguage(s.session);
  EXPECT_EQ(s.main.cmbAntrieb.Row(), 2);
  EXPECT_EQ(s.main.cmbMotor.Row(), 1);
  EXPECT_EQ(s.main.cmbFrontLichter.Row(), 3);
  EXPECT_EQ(s.main.cmbRearLichter.Row(), 2);
  EXPECT_EQ(RecordsOf(s.vars.Cars), before);
  EXPECT_TRUE(s.vars.IsSaved);
}

TEST(ApplyLanguage, ATabShowsOneAmpersandForTwoAndABreakAsItIs) {
  TestSession s;
  s.vars.Lang[4] = "Power&&Drive";
  s.vars.Lang[17] = "&Mass\r\n(kg)";
  ApplyLanguage(s.session);
  EXPECT_EQ(s.main.SSTab1.Tabs()[2], "Power&Drive");
  EXPECT_EQ(s.main.txtGewicht.label.Caption(), "&Mass\r\n(kg)");
}

}  // namespace
}  // namespace wheelwright::testing
