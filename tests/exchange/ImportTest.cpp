// What an import does around its reading.
#include "core/Failure.h"
#include "exchange/ExportImport.h"
#include "support/Exchange.h"
#include "support/TableRecords.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;
using Rows = std::vector<std::string>;

const Shown kDone{"open", "hourglass", "normal", "information: E115"};

void OpenBusAndTaxi(TestSession& test) {
  test.OpenHandling(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS", "5500.0")}));
}

TEST(ImportVehicles, AddsVehiclesToTableAndList) {
  TestSession test;
  OpenBusAndTaxi(test);
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  Import(test, CrLf({VehicleLineOf("VAN"), VehicleLineOf("AMBULAN")}));
  EXPECT_EQ(test.desktop.shown, kDone);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"TAXI", "BUS", "VAN", "AMBULAN"}));
  EXPECT_EQ(RecordsOf(test.vars.Kopie_Cars), loaded);
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.Disk(kImportPath), CrLf({VehicleLineOf("VAN"), VehicleLineOf("AMBULAN")}));
}

TEST(ImportVehicles, ItsDialogKeepsFileAndIndexOfTheOpenDialog) {
  TestSession test;
  OpenBusAndTaxi(test);
  Import(test, "");
  const FileDialog& dialog = test.desktop.dialogs.back();
  EXPECT_EQ(dialog.title, "E114");
  EXPECT_EQ(dialog.filter, "E014 (*.cfg)|*.cfg|");
  EXPECT_EQ(dialog.filterIndex, 1);
  EXPECT_EQ(dialog.file, TestSession::kHandlingPath);
  EXPECT_EQ(dialog.flags, FileDialog::kHideReadOnly);
}

TEST(ImportVehicles, ACancelEndsSilently) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.desktop.shown.clear();
  test.desktop.choices.emplace_back();
  test.main.cmdImportCar.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Shown{"open"});
  EXPECT_EQ(test.vars.Cars.Count(), 2);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, AFileThatIsNotThereIsSaidWithNormalPointer) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.main.cmbAutos.ChooseByHand(1);
  test.desktop.shown.clear();
  test.desktop.choices.push_back(FileChoice{"/swap/gone.cfg", {}});
  test.main.cmdImportCar.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Shown{"open", "hourglass", "normal", "error: E012"}));
  EXPECT_EQ(test.main.cmbAutos.Row(), 1);
  EXPECT_EQ(test.vars.Cars.Count(), 2);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, AFileThatCantBeReadShowsItsFailureWithNormalPointer) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.files.failingReads[kImportPath] = FailureNumber::PermissionDenied;
  Import(test, CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(test.desktop.shown,
            (Shown{"open", "hourglass", "normal", "error: Error: 70 - Permission denied"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, AFileWithoutVehiclesStillChoosesTheFirstAndMarksAsChanged) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.main.cmbAutos.ChooseByHand(1);
  Import(test, CrLf({"; nothing here", "", "short"}));
  EXPECT_EQ(test.desktop.shown, kDone);
  EXPECT_EQ(test.vars.Cars.Count(), 2);
  EXPECT_EQ(test.main.cmbAutos.Row(), 0);
  EXPECT_EQ(test.main.txtAutoname.Text(), "BUS");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(ImportVehicles, ShowsAFirstVehicleThatWasImported) {
  TestSession test;
  OpenBusAndTaxi(test);
  Import(test, CrLf({VehicleLineOf("AMBULAN", "2600.0")}));
  EXPECT_EQ(test.vars.CurrentCar, 2);
  EXPECT_EQ(test.main.txtAutoname.Text(), "AMBULAN");
  EXPECT_EQ(test.main.txtGewicht.Text(), "2600.0");
}

TEST(ImportVehicles, AFirstRowThatStaysRunsNoSelection) {
  TestSession test;
  OpenBusAndTaxi(test);
  int selections = 0;
  test.main.cmbAutos.clicked = [&selections] { ++selections; };
  Import(test, CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(selections, 0);
  Import(test, CrLf({VehicleLineOf("AMBULAN")}));
  EXPECT_EQ(selections, 1);
}

TEST(ImportVehicles, BeforeAnyLoadFailsBehindTheFirstPass) {
  TestSession test;
  Import(test, CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(test.desktop.shown,
            (Shown{"open", "hourglass", "normal", "error: Error: 9 - Subscript out of range"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{"VAN"});
  EXPECT_FALSE(test.vars.Cars.IsAllocated());
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, IntoAnEmptyListWithoutAVehicleFailsAtTheChoice) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.main.cmbAutos.Clear();
  Import(test, CrLf({"; nothing here"}));
  EXPECT_EQ(test.desktop.shown,
            (Shown{"open", "hourglass", "normal", "error: Error: 380 - Invalid property value"}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, CountsRecordsInSixteenBits) {
  TestSession test;
  OpenBusAndTaxi(test);
  test.vars.Cars.ExtendTo(32766);
  Import(test, CrLf({VehicleLineOf("VAN"), VehicleLineOf("AMBULAN")}));
  EXPECT_EQ(test.desktop.shown, (Shown{"open", "hourglass", "normal", "error: Error: 6 - Overflow"}));
  EXPECT_EQ(test.vars.Cars.Count(), 32768);
  EXPECT_EQ(test.vars.Cars.At(32767).CarName, "VAN");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ImportVehicles, ProblemsJoinThoseOfBeforeAndShowTheirWindow) {
  TestSession test;
  OpenBusAndTaxi(test);
  Import(test, CrLf({VehicleLineOf("CAB")}));
  EXPECT_FALSE(test.error.IsVisible());
  Import(test, CrLf({"VAN           1500.0"}));
  Import(test, CrLf({"AXO           heavy"}));
  EXPECT_TRUE(test.error.IsVisible());
  EXPECT_EQ(test.error.lstErrors.Rows(),
            (std::vector<ReportList::Row>{
                {"VAN", "", "E102: 2 E103"}, {"AXO", "", "E102: 2 E103"}, {"AXO", "E017", "E105"}}));
}

TEST(ImportVehicles, TheNextSaveWritesThemInTheirSortedPlaces) {
  TestSession test;
  OpenBusAndTaxi(test);
  Import(test, CrLf({VehicleLineOf("VAN"), VehicleLineOf("CAB")}));
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.Disk(TestSession::kHandlingPath),
            CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/",
                  VehicleLineOf("BUS", "5500.0"), VehicleLineOf("CAB"), VehicleLineOf("TAXI"),
                  VehicleLineOf("VAN"), ";", ";the end"}));
}

}  // namespace
}  // namespace wheelwright::testing
