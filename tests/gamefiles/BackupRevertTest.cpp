#include "core/Failure.h"
#include "gamefiles/SaveFile.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

constexpr const char* kBackup = "/game/handling.cfg.backup";

const std::string kTwoVehicles = CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS", "5500.0")});
const std::string kBanner =
    CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/"});

const std::string kTwoDefinitions =
    CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0, 251, 0.7",
          "131, coach, coach, car, BUS, BUS, null, big, 9, 7, 0, 253, 0.9", "end"});

const std::string kPalette =
    CrLf({"col", "0,0,0\t\t\t\t# 0 black", "10,20,30\t\t\t# 1 sea", "255,0,0\t\t\t# 2 red", "end", "car",
          "taxi, 1, 2", "bus, 2, 1, 0, 1", "end"});

using Rows = std::vector<std::string>;

void AnswerAndRevert(TestSession& test, bool yes = true) {
  test.desktop.shown.clear();
  test.desktop.answers.push_back(yes);
  test.main.cmdUndo.ClickByHand();
}

void DeleteColorOfRow(TestSession& test, int row) {
  test.main.lstColors.ChooseByHand(row);
  test.desktop.answers.push_back(true);
  test.main.cmdDeleteColor.ClickByHand();
}

// Files on a disk that fails before it says whether a file is there.
class UnreachableFiles : public MemoryFiles {
 public:
  bool Exists(const std::string& /*path*/) const override { throw Failure(FailureNumber::DeviceIoError); }
};

TEST(BackupFile, WithoutAnOpenFileDoesNothing) {
  TestSession test;
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{});
  EXPECT_EQ(test.files.written, Shown{});
}

TEST(BackupFile, WithoutAnEarlierBackupAsksNothing) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.desktop.shown.clear();
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{"information: E060\r\n/game/handling.cfg.backup"});
  EXPECT_EQ(test.Disk(kBackup), kTwoVehicles);
}

TEST(BackupFile, ANoLeavesTheEarlierBackupAsItWas) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.files.contents[kBackup] = "older\n";
  test.desktop.shown.clear();
  test.desktop.answers = {false};
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{"yesno: E061"});
  EXPECT_EQ(test.Disk(kBackup), "older\n");
}

TEST(BackupFile, AYesReplacesTheEarlierBackup) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.files.contents[kBackup] = "older\n";
  test.desktop.shown.clear();
  test.desktop.answers = {true};
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E061", "information: E060\r\n/game/handling.cfg.backup"}));
  EXPECT_EQ(test.Disk(kBackup), kTwoVehicles);
}

TEST(BackupFile, AnOpenBackupGetsASecondSuffix) {
  TestSession test;
  test.Open(kBackup, kTwoVehicles, 1);
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.LastShown(), "information: E060\r\n/game/handling.cfg.backup.backup");
  EXPECT_EQ(test.Disk("/game/handling.cfg.backup.backup"), kTwoVehicles);
}

TEST(BackupFile, HoldsTheStateOnDiskAndNoEdits) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.txtGewicht.EditByHand("1");
  test.main.cmdBackup.ClickByHand();
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.vars.Cars.At(1).Mass, "1");
  EXPECT_EQ(test.vars.Kopie_Cars.At(1).Mass, "5500.0");
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.Disk(kBackup), kTwoVehicles);
  EXPECT_EQ(test.Disk(TestSession::kHandlingPath),
            kBanner + CrLf({VehicleLineOf("BUS", "1"), VehicleLineOf("TAXI"), ";", ";the end"}));
}

TEST(BackupFile, LeavesIsSavedTrue) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmdBackup.ClickByHand();
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(BackupFile, AFailingCopyShowsItsFailure) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.files.failingWrites[kBackup] = FailureNumber::DiskFull;
  test.desktop.shown.clear();
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 61 - Disk full"});
}

TEST(BackupFile, AFileThatHasGoneShowsItsFailure) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.files.contents.erase(TestSession::kHandlingPath);
  test.desktop.shown.clear();
  test.main.cmdBackup.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 53 - File not found"});
  EXPECT_FALSE(test.files.contents.contains(kBackup));
}

TEST(BackupFile, AFailingTestForAnEarlierBackupPasses) {
  FakeDesktop desktop;
  MemorySettings settings;
  UnreachableFiles files;
  Session session(desktop, settings, files);
  session.vars.CurrentFile = TestSession::kHandlingPath;
  try {
    BackupFile(session);
    FAIL() << "no failure came through";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), FailureNumber::DeviceIoError);
  }
  EXPECT_EQ(desktop.shown, Shown{});
}

TEST(RevertToSnapshot, ANoChangesNothing) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmbAutos.ChooseByHand(1);
  test.main.txtGewicht.EditByHand("1");
  AnswerAndRevert(test, false);
  EXPECT_EQ(test.desktop.shown, Shown{"yesno: E098"});
  EXPECT_EQ(test.vars.Cars.At(0).Mass, "1");
  EXPECT_EQ(test.main.cmbAutos.Row(), 1);
  EXPECT_EQ(test.main.txtGewicht.Text(), "1");
}

TEST(RevertToSnapshot, BringsTheVehiclesBackAndShowsTheFirst) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmbAutos.ChooseByHand(1);
  test.main.txtAutoname.EditByHand("CAB");
  test.main.txtGewicht.EditByHand("1");
  AnswerAndRevert(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E098", "information: E099"}));
  EXPECT_EQ(RecordsOf(test.vars.Cars), RecordsOf(test.vars.Kopie_Cars));
  EXPECT_EQ(test.vars.Cars.At(0).Mass, "1500.0");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(test.main.cmbAutos.Row(), 0);
  EXPECT_EQ(test.vars.CurrentCar, 1);
  EXPECT_EQ(test.main.txtAutoname.Text(), "BUS");
  EXPECT_EQ(test.main.txtGewicht.Text(), "5500.0");
}

TEST(RevertToSnapshot, LeavesIsSavedAsItFoundIt) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  AnswerAndRevert(test);
  EXPECT_TRUE(test.vars.IsSaved);
  test.main.txtGewicht.EditByHand("1");
  AnswerAndRevert(test);
  EXPECT_FALSE(test.vars.IsSaved);
  test.desktop.answers = {false};
  test.main.cmdEnde.ClickByHand();
  EXPECT_EQ(test.LastShown(), "question: E117");
}

TEST(RevertToSnapshot, NeitherReadsNorWritesTheFile) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.files.contents[TestSession::kHandlingPath] = "another text";
  test.files.written.clear();
  AnswerAndRevert(test);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(test.Disk(TestSession::kHandlingPath), "another text");
  EXPECT_EQ(test.files.written, Shown{});
}

TEST(RevertToSnapshot, GoesBackToTheLastSave) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmbAutos.ChooseByHand(1);
  test.main.txtGewicht.EditByHand("1");
  test.main.cmdSave.ClickByHand();
  const std::vector<Car> saved = RecordsOf(test.vars.Cars);
  AnswerAndRevert(test);
  EXPECT_EQ(RecordsOf(test.vars.Cars), saved);
  EXPECT_EQ(saved.at(0).Mass, "1");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(test.main.txtAutoname.Text(), "BUS");
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(RevertToSnapshot, LaterEditsDontReachTheSnapshot) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.txtGewicht.EditByHand("1");
  AnswerAndRevert(test);
  test.main.txtGewicht.EditByHand("2");
  EXPECT_EQ(test.vars.Kopie_Cars.At(1).Mass, "5500.0");
  AnswerAndRevert(test);
  EXPECT_EQ(test.main.txtGewicht.Text(), "5500.0");
}

TEST(RevertToSnapshot, ListsADoubledNameTwice) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS", "1.0"), VehicleLineOf("BUS", "2.0")}));
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  AnswerAndRevert(test);
  EXPECT_EQ(RecordsOf(test.vars.Cars), loaded);
  EXPECT_EQ(loaded.size(), 4U);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "BUS", "BUS", "BUS"}));
}

TEST(RevertToSnapshot, AnUnsavedNewVehicleDisappears) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmdNewCar.ClickByHand();
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "NEWCAR3", "TAXI"}));
  AnswerAndRevert(test);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(test.vars.Cars.Count(), 2);
}

TEST(RevertToSnapshot, BringsTheDefinitionsBack) {
  TestSession test;
  test.OpenDefinition(kTwoDefinitions);
  test.main.cmbAutos.ChooseByHand(1);
  test.main.txtHandlingID.EditByHand("CAB");
  test.main.txtLevel.EditByHand("3");
  AnswerAndRevert(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E098", "information: E099"}));
  EXPECT_EQ(RecordsOf(test.vars.Ides), RecordsOf(test.vars.Kopie_Ides));
  EXPECT_EQ(test.vars.Ides.At(0).HandlingID, "TAXI");
  EXPECT_EQ(test.vars.Ides.At(0).Level, "7");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(test.vars.CurrentIde, 1);
  EXPECT_EQ(test.main.txtHandlingID.Text(), "BUS");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(RevertToSnapshot, TouchesOnlyTheOpenKind) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.txtGewicht.EditByHand("1");
  test.desktop.answers = {true};
  test.OpenDefinition(kTwoDefinitions);
  AnswerAndRevert(test);
  EXPECT_EQ(test.vars.Cars.At(1).Mass, "1");
}

TEST(RevertToSnapshot, ADeletedColorIsBackWithItsPairs) {
  TestSession test;
  test.OpenColors(kPalette);
  DeleteColorOfRow(test, 1);
  EXPECT_EQ(test.vars.CarColors.At(0), (CarColorEntry{"taxi", {{0, 2}}}));
  AnswerAndRevert(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E098", "information: E099"}));
  EXPECT_EQ(RecordsOf(test.vars.Colors), RecordsOf(test.vars.Kopie_Colors));
  EXPECT_EQ(test.vars.Colors.At(1), (ColorEntry{1, 10, 20, 30, "sea"}));
  EXPECT_EQ(test.vars.CarColors.At(0), (CarColorEntry{"taxi", {{1, 2}}}));
  EXPECT_EQ(test.vars.CarColors.At(1), (CarColorEntry{"bus", {{2, 1}, {0, 1}}}));
  EXPECT_EQ(test.main.lstColors.Rows(), (Rows{"black - 0,0,0", "sea - 10,20,30", "red - 255,0,0"}));
  EXPECT_EQ(test.main.lstColors.Row(), -1);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"bus", "taxi"}));
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Rows{"red - sea", "black - sea"}));
}

TEST(RevertToSnapshot, FillsThePickListsOfColorsAnew) {
  TestSession test;
  test.OpenColors(kPalette);
  test.main.cmdNewColor.ClickByHand();
  test.main.SSTab3.ClickByHand(1);
  test.main.cmbColor1.ChooseByHand(3);
  AnswerAndRevert(test);
  const Rows labels{"black - 0,0,0", "sea - 10,20,30", "red - 255,0,0"};
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.cmbColor2.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array<int, 3>{0, 0, 0}));
}

TEST(RevertToSnapshot, AColorDeletedAndSavedStaysGone) {
  TestSession test;
  test.OpenColors(kPalette);
  DeleteColorOfRow(test, 1);
  test.main.cmdSave.ClickByHand();
  AnswerAndRevert(test);
  EXPECT_EQ(test.main.lstColors.Rows(), (Rows{"black - 0,0,0", "red - 255,0,0"}));
  EXPECT_EQ(test.vars.Colors.At(1), (ColorEntry{2, 255, 0, 0, "red"}));
  EXPECT_EQ(test.vars.CarColors.At(0), (CarColorEntry{"taxi", {{0, 2}}}));
}

TEST(RevertToSnapshot, LaterPairsDontReachTheSnapshot) {
  TestSession test;
  test.OpenColors(kPalette);
  AnswerAndRevert(test);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(test.vars.CarColors.At(1), (CarColorEntry{"bus", {{2, 1}, {0, 1}, {0, 0}}}));
  EXPECT_EQ(test.vars.Kopie_CarColors.At(1), (CarColorEntry{"bus", {{2, 1}, {0, 1}}}));
}

TEST(RevertToSnapshot, WithoutASnapshotShowsTheFailureAndListsNothing) {
  TestSession test;
  AnswerAndRevert(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E098", "error: Error: 9 - Subscript out of range"}));
  EXPECT_FALSE(test.vars.Cars.IsAllocated());
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{});
}

TEST(RevertToSnapshot, AFailureLeavesTheTablesAsFarAsItGot) {
  TestSession test;
  test.OpenColors(kPalette);
  DeleteColorOfRow(test, 1);
  test.vars.Kopie_CarColors = Table<CarColorEntry>();
  AnswerAndRevert(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E098", "error: Error: 9 - Subscript out of range"}));
  EXPECT_EQ(test.vars.Colors.Count(), 3);
  EXPECT_EQ(test.main.lstColors.Count(), 3);
  EXPECT_FALSE(test.vars.CarColors.IsAllocated());
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{});
}

}  // namespace
}  // namespace wheelwright::testing
