#include "gamefiles/SaveFile.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"
#include "support/Watch.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr const char* kPath = TestSession::kHandlingPath;
constexpr const char* kTarget = "/game/copy.txt";

const std::string kHead =
    CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/"});
const std::string kEnd = CrLf({";", ";the end"});
const std::string kBus = CrLf({VehicleLineOf("BUS")});
const std::string kDefinition =
    CrLf({"cars", "90, bus, bus, car, BUS, BUS, null, normal, 10, 7, 0, 164, 0.8", "end"});
const std::string kColors = CrLf({"col", "1,2,3\t# 0 black", "end", "car", "bus, 0,0", "end"});

class SaveFileTest : public ::testing::Test {
 protected:
  // A handling file with one vehicle, whose mass a person has changed to 1.
  void OpenAndEdit(const std::string& text = kBus) {
    test.OpenHandling(text);
    test.main.txtGewicht.EditByHand("1");
    test.desktop.shown.clear();
    test.files.written.clear();
  }

  void Save() { test.main.cmdSave.ClickByHand(); }

  void SaveAs(const std::string& target) {
    test.desktop.choices.push_back(FileChoice{target, std::nullopt});
    test.main.cmdSaveAs.ClickByHand();
  }

  std::string MassInSnapshot() const { return test.vars.Kopie_Cars.At(0).Mass; }

  const std::string edited = kHead + CrLf({VehicleLineOf("BUS", "1")}) + kEnd;
  TestSession test;
};

// The common frame

TEST_F(SaveFileTest, SaveWritesTheTablesAndOneMoreLineEnd) {
  OpenAndEdit();
  Save();
  EXPECT_EQ(test.Disk(kPath), edited);
  EXPECT_EQ(test.files.written, Texts{kPath});
  EXPECT_EQ(test.desktop.shown, Texts{"information: E116"});
  EXPECT_TRUE(test.vars.IsSaved);
  EXPECT_EQ(MassInSnapshot(), "1");
}

TEST_F(SaveFileTest, SaveAsWritesTheTablesIntoTheTarget) {
  OpenAndEdit();
  SaveAs(kTarget);
  EXPECT_EQ(test.Disk(kTarget), edited);
  EXPECT_EQ(test.Disk(kPath), kBus);
  EXPECT_EQ(test.files.written, Texts{kTarget});
  EXPECT_EQ(test.desktop.shown, (Texts{"save", "information: E116"}));
  EXPECT_TRUE(test.vars.IsSaved);
  EXPECT_EQ(MassInSnapshot(), "1");
}

TEST_F(SaveFileTest, AMissingTemplateEndsBothWithoutAWord) {
  OpenAndEdit();
  test.files.contents.clear();
  Save();
  EXPECT_EQ(test.desktop.shown, Texts{});
  SaveAs(kTarget);
  EXPECT_EQ(test.desktop.shown, Texts{"save"});
  EXPECT_EQ(test.files.contents, (std::map<std::string, std::string>{}));
  EXPECT_EQ(test.vars.CurrentFile, kPath);
  EXPECT_EQ(MassInSnapshot(), "1500.0");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST_F(SaveFileTest, AReadOnlyFileBecomesWritableAndIsSaved) {
  test.files.readOnly.insert(kPath);
  OpenAndEdit();
  Save();
  EXPECT_EQ(test.Disk(kPath), edited);
  EXPECT_FALSE(test.files.readOnly.contains(kPath));
}

TEST_F(SaveFileTest, AttributesAreClearedBeforeTheTextIsBuilt) {
  OpenAndEdit();
  test.files.readOnly.insert(kPath);
  test.files.failingReads[kPath] = FailureNumber::DeviceIoError;
  SaveAs(kTarget);
  EXPECT_EQ(test.LastShown(), "error: Error: 57 - Device I/O error");
  EXPECT_FALSE(test.files.readOnly.contains(kPath));
  EXPECT_EQ(MassInSnapshot(), "1500.0");
  EXPECT_FALSE(test.files.contents.contains(kTarget));
}

TEST_F(SaveFileTest, ATemplateThatChangedSinceTheLoadGivesItsCommentsAndSpecialLines) {
  OpenAndEdit();
  test.files.contents[kPath] = CrLf({"; new", VehicleLineOf("TAXI"), "% NEW"});
  Save();
  EXPECT_EQ(test.Disk(kPath), kHead + CrLf({"; new", VehicleLineOf("BUS", "1"), "% NEW"}) + kEnd);
}

TEST_F(SaveFileTest, OnlyTheTablesOfTheOpenKindGoOverTheirSnapshots) {
  OpenAndEdit();
  test.vars.IsSaved = true;
  test.OpenDefinition(kDefinition);
  test.vars.Ides.At(0).TXDName = "other";
  Save();
  EXPECT_EQ(test.vars.Kopie_Ides.At(0).TXDName, "other");
  EXPECT_EQ(MassInSnapshot(), "1500.0");
  test.OpenColors(kColors);
  test.vars.Colors.At(0).Red = 77;
  test.vars.CarColors.At(0).Pairs = {{5, 6}};
  test.vars.Ides.At(0).TXDName = "third";
  Save();
  EXPECT_EQ(test.vars.Kopie_Colors.At(0).Red, 77);
  EXPECT_EQ(test.vars.Kopie_CarColors.At(0).Pairs, (std::vector<ColorPair>{{5, 6}}));
  EXPECT_EQ(test.vars.Kopie_Ides.At(0).TXDName, "other");
}

TEST_F(SaveFileTest, TheVehicleStaysOnScreenAndTheCommandsStayEnabled) {
  test.OpenHandling(CrLf({VehicleLineOf("BUS"), VehicleLineOf("TAXI")}));
  test.main.cmbAutos.ChooseByHand(1);
  Save();
  EXPECT_EQ(test.main.cmbAutos.Row(), 1);
  EXPECT_EQ(test.main.txtAutoname.Text(), "TAXI");
  for (const Button* button :
       {&test.main.cmdSave, &test.main.cmdSaveAs, &test.main.cmdBackup, &test.main.cmdUndo}) {
    EXPECT_TRUE(button->IsEnabled()) << button->Name();
  }
}

TEST_F(SaveFileTest, RevertGoesBackToTheStateOfTheSave) {
  OpenAndEdit();
  Save();
  test.main.txtGewicht.EditByHand("2");
  test.desktop.answers.push_back(true);
  test.main.cmdUndo.ClickByHand();
  EXPECT_EQ(test.vars.Cars.At(0).Mass, "1");
}

// Titles and dialogs

TEST_F(SaveFileTest, SaveDoesntTouchTitleDialogOrSettings) {
  OpenAndEdit();
  const auto settings = test.settings.values;
  Save();
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/handling.cfg]");
  EXPECT_EQ(test.main.CmD1.flags, 5);
  EXPECT_EQ(test.settings.values, settings);
}

TEST_F(SaveFileTest, SaveAsTakesTheNewNameAndItsOwnTitleButStoresNoSetting) {
  OpenAndEdit();
  const auto settings = test.settings.values;
  SaveAs(kTarget);
  EXPECT_EQ(test.vars.CurrentFile, kTarget);
  EXPECT_EQ(test.main.Title(), "GTA3 PC-Version - Wheelwright [/game/copy.txt]");
  EXPECT_EQ(test.settings.values, settings);
}

TEST_F(SaveFileTest, TheTitleComesBeforeTheMessage) {
  OpenAndEdit();
  WatchTitle(test);
  SaveAs(kTarget);
  EXPECT_EQ(test.desktop.shown,
            (Texts{"save", "title: GTA3 PC-Version - Wheelwright [/game/copy.txt]", "information: E116"}));
}

TEST_F(SaveFileTest, TheDialogOfSaveAsKeepsWhatTheOpenDialogLeft) {
  OpenAndEdit();
  SaveAs(kTarget);
  const FileDialog& dialog = test.desktop.dialogs.back();
  EXPECT_EQ(dialog.title, "E013");
  EXPECT_EQ(dialog.file, kPath);
  EXPECT_EQ(dialog.filterIndex, 1);
  EXPECT_EQ(dialog.filter, "E014 (*.cfg)|*.cfg|");
  EXPECT_EQ(dialog.flags, 2);
}

TEST_F(SaveFileTest, TheNextSaveAsComesUpWithTheNameOfTheLast) {
  OpenAndEdit();
  SaveAs(kTarget);
  SaveAs("/game/third.cfg");
  EXPECT_EQ(test.desktop.dialogs.back().file, kTarget);
  EXPECT_EQ(test.Disk("/game/third.cfg"), edited + "\r\n");
}

TEST_F(SaveFileTest, ADefinitionFileHasItsOwnFilterAndAColourFileKeepsTheThree) {
  test.OpenDefinition(kDefinition);
  SaveAs("/game/copy.ide");
  EXPECT_EQ(test.desktop.dialogs.back().filter, "E122 (*.ide)|*.ide|");
  test.OpenColors(kColors);
  SaveAs("/game/copy.dat");
  EXPECT_EQ(test.desktop.dialogs.back().filter,
            "E014 (*.cfg)|*.cfg;*.cfg.backup|E122 (*.ide)|*.ide;*.ide.backup|E152 "
            "(*.dat)|*.dat;*.dat.backup|");
  EXPECT_EQ(test.desktop.dialogs.back().flags, 2);
  EXPECT_EQ(test.desktop.dialogs.back().filterIndex, 3);
}

TEST_F(SaveFileTest, SaveAsToTheSameNameIsASaveWithAnotherTitle) {
  OpenAndEdit();
  SaveAs(kPath);
  EXPECT_EQ(test.Disk(kPath), edited);
  EXPECT_EQ(test.vars.CurrentFile, kPath);
  EXPECT_EQ(test.main.Title(), "GTA3 PC-Version - Wheelwright [/game/handling.cfg]");
}

TEST_F(SaveFileTest, ANameOfNoKindIsTakenAndALaterOpenDoesntKnowIt) {
  OpenAndEdit();
  SaveAs(kTarget);
  test.desktop.choices.push_back(FileChoice{kTarget, 1});
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.LastShown(), "error: Error: Filetype unknown!");
}

TEST_F(SaveFileTest, TheNextSaveGoesIntoTheNewFile) {
  OpenAndEdit();
  SaveAs(kTarget);
  test.main.txtGewicht.EditByHand("22");
  Save();
  EXPECT_EQ(test.Disk(kPath), kBus);
  EXPECT_EQ(test.Disk(kTarget), kHead + CrLf({VehicleLineOf("BUS", "22")}) + kEnd + "\r\n");
}

// Failures

TEST_F(SaveFileTest, AFailureOfSaveIsntCaught) {
  OpenAndEdit();
  const std::string before = test.Disk(kPath);
  test.files.failingWrites[kPath] = FailureNumber::DiskFull;
  EXPECT_EQ(NumberThrownBy([&] { Save(); }), 61);
  EXPECT_EQ(test.desktop.shown, Texts{});
  EXPECT_EQ(MassInSnapshot(), "1");
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.Disk(kPath), before);
}

TEST_F(SaveFileTest, ACancelledDialogOfSaveAsChangesNothing) {
  OpenAndEdit();
  test.desktop.choices.push_back(std::nullopt);
  test.main.cmdSaveAs.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{"save"});
  EXPECT_EQ(test.files.written, Texts{});
  EXPECT_EQ(test.vars.CurrentFile, kPath);
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(MassInSnapshot(), "1500.0");
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/handling.cfg]");
}

TEST_F(SaveFileTest, AFailedWriteOfSaveAsLeavesTheSnapshotAhead) {
  OpenAndEdit();
  test.files.failingWrites[kTarget] = FailureNumber::DiskFull;
  SaveAs(kTarget);
  EXPECT_EQ(test.desktop.shown, (Texts{"save", "error: Error: 61 - Disk full"}));
  EXPECT_EQ(MassInSnapshot(), "1");
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.vars.CurrentFile, kPath);
  EXPECT_FALSE(test.files.Exists(kTarget));
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/handling.cfg]");
  EXPECT_TRUE(test.main.cmdSave.IsEnabled());
}

TEST_F(SaveFileTest, SaveAsOntoAReadOnlyFileFails) {
  OpenAndEdit();
  test.files.contents[kTarget] = "kept";
  test.files.readOnly.insert(kTarget);
  SaveAs(kTarget);
  EXPECT_EQ(test.LastShown(), "error: Error: 75 - Path/File access error");
  EXPECT_EQ(test.Disk(kTarget), "kept");
  EXPECT_TRUE(test.files.readOnly.contains(kTarget));
}

}  // namespace
}  // namespace wheelwright::testing
