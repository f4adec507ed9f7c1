#include "exchange/ExportImport.h"
#include "support/Exchange.h"
#include "support/TableRecords.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

const std::string kHead =
    "; File created with Wheelwright V1.0.0\r\n"
    "; Homepage: https://wheelwright.example/\r\n"
    "; Author: \r\n"
    "; Created \r\n"
    ";\r\n"
    "; > COMMENTS <\r\n"
    "; ------------\r\n"
    "; TWEAK AT YOUR OWN RISK\r\n"
    ";\r\n"
    "; > THE DATA <\r\n"
    "; ------------\r\n"
    ";\r\n";
const std::string kTail = ";\r\n;the end\r\n";

const std::string kTwoVehicles = CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS", "5500.0")});

void Cancel(TestSession& test) {
  test.desktop.choices.emplace_back();
  test.exporter.cmdExport.ClickByHand();
}

TEST(ExportVehicles, WithNothingOnTheRightDoesNothing) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.main.cmdExportCar.ClickByHand();
  test.desktop.shown.clear();
  test.exporter.cmdExport.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{});
  EXPECT_TRUE(test.exporter.IsVisible());
}

TEST(ExportVehicles, SaysSoAndThenUnloadsTheWindow) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  ChooseAllForExport(test);
  test.desktop.shown.clear();
  test.exporter.notice = [&] {
    if (!test.exporter.IsVisible()) test.desktop.shown.emplace_back("gone");
  };
  ExportChosen(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"save", "information: E113", "gone"}));
  EXPECT_FALSE(test.exporter.IsVisible());
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Shown{"BUS", "TAXI"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), Shown{});
}

TEST(ExportVehicles, ItsDialogKeepsNothingFromUseToUse) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  for (int use = 0; use < 2; ++use) {
    ChooseAllForExport(test);
    test.desktop.choices.push_back(FileChoice{kExportPath, 1});
    test.exporter.cmdExport.ClickByHand();
    const FileDialog& dialog = test.desktop.dialogs.back();
    EXPECT_EQ(dialog.title, "");
    EXPECT_EQ(dialog.filter, "E014 (*.cfg)|*.cfg|");
    EXPECT_EQ(dialog.filterIndex, 0);
    EXPECT_EQ(dialog.file, "");
    EXPECT_EQ(dialog.flags, FileDialog::kOverwritePrompt);
  }
}

TEST(ExportVehicles, ACancelEndsSilently) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  ChooseAllForExport(test);
  test.desktop.shown.clear();
  Cancel(test);
  EXPECT_EQ(test.desktop.shown, Shown{"save"});
  EXPECT_EQ(test.files.written, Shown{});
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst2.Rows(), (Shown{"BUS", "TAXI"}));
}

TEST(ExportVehicles, ReplacesWhatWasThereUnderTheNameAsChosen) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  ChooseAllForExport(test);
  test.files.contents["/swap/mine"] = std::string(5000, 'x');
  test.desktop.choices.push_back(FileChoice{"/swap/mine", {}});
  test.exporter.cmdExport.ClickByHand();
  EXPECT_EQ(test.Disk("/swap/mine"), kHead + CrLf({VehicleLineOf("BUS")}) + kTail);
  EXPECT_FALSE(test.files.contents.contains("/swap/mine.cfg"));
}

TEST(ExportVehicles, ChangesNothingOfTheSession) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  ChooseAllForExport(test);
  ExportChosen(test);
  EXPECT_EQ(RecordsOf(test.vars.Cars), loaded);
  EXPECT_TRUE(test.vars.IsSaved);
  test.main.txtGewicht.EditByHand("1");
  ChooseAllForExport(test);
  ExportChosen(test);
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(ExportVehicles, FollowsTheRightListAndNotTheTable) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("VAN"), VehicleLineOf("BUS"), VehicleLineOf("CAB")}));
  test.main.cmdExportCar.ClickByHand();
  test.exporter.lst1.MarkByHand({0, 2});
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(ExportChosen(test), kHead + CrLf({VehicleLineOf("BUS"), VehicleLineOf("VAN")}) + kTail);
}

TEST(ExportVehicles, AFailingWriteShowsItsFailureAndKeepsTheWindow) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  ChooseAllForExport(test);
  test.files.contents[kExportPath] = "an earlier export";
  test.files.failingWrites[kExportPath] = FailureNumber::DiskFull;
  test.desktop.shown.clear();
  EXPECT_EQ(ExportChosen(test), "an earlier export");
  EXPECT_EQ(test.desktop.shown, (Shown{"save", "error: Error: 61 - Disk full"}));
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst2.Count(), 2);
}

TEST(ExportVehicles, WithoutATableOfVehiclesFailsBehindTheHead) {
  TestSession test;
  test.OpenDefinition(
      CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0, 251, 0.7", "end"}));
  ChooseAllForExport(test);
  EXPECT_EQ(ExportChosen(test), kHead);
  EXPECT_EQ(test.LastShown(), "error: Error: 9 - Subscript out of range");
  EXPECT_TRUE(test.exporter.IsVisible());
}

TEST(ExportVehicles, WithADefinitionFileOpenTakesTheVehiclesInMemory) {
  TestSession test;
  test.OpenHandling(kTwoVehicles);
  test.OpenDefinition(
      CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0, 251, 0.7", "end"}));
  ChooseAllForExport(test);
  EXPECT_EQ(ExportChosen(test), kHead + CrLf({VehicleLineOf("TAXI")}) + kTail);
}

}  // namespace
}  // namespace wheelwright::testing
