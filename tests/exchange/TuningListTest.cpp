#include "core/Failure.h"
#include "exchange/ExportImport.h"
#include "support/Exchange.h"
#include "support/TableRecords.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::string>;

constexpr const char* kListPath = "/swap/list";

// The number of the failure that passes through the click, if one does.
std::optional<FailureNumber> Click(TestSession& test) {
  test.desktop.shown.clear();
  try {
    test.exporter.Spez.ClickByHand();
  } catch (const Failure& failure) {
    return failure.Number();
  }
  return std::nullopt;
}

std::string Written(TestSession& test) {
  test.desktop.choices.push_back(FileChoice{kListPath, {}});
  EXPECT_EQ(Click(test), std::nullopt);
  return test.Disk(kListPath);
}

std::string BlockOf(const std::string& name) {
  const std::string record = "Kopie_Cars(0).";
  return CrLf({"'" + name, record + "CarName = \"" + name + "\"", record + "SuspensionForceLevel = \"1.6\"",
               record + "SuspensionDampingLevel = \"0.08\"", record + "suspension_upper_limit = \"0.35\"",
               record + "suspension_lower_limit = \"-0.16\"", record + "IsSportCar = False", "", ""});
}

TEST(WriteTuningFile, WithNothingOnTheRightDoesNothing) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(Click(test), std::nullopt);
  EXPECT_EQ(test.desktop.shown, Rows{});
}

TEST(WriteTuningFile, AsksForTheFileLikeAnExport) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  ChooseAllForExport(test);
  Written(test);
  const FileDialog& dialog = test.desktop.dialogs.back();
  EXPECT_EQ(dialog.title, "");
  EXPECT_EQ(dialog.filter, "E014 (*.cfg)|*.cfg|");
  EXPECT_EQ(dialog.file, "");
  EXPECT_EQ(dialog.flags, FileDialog::kOverwritePrompt);
}

TEST(WriteTuningFile, SaysNothingAndCanBeRepeatedAtOnce) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("CAB"), VehicleLineOf("BUS")}));
  test.main.cmdExportCar.ClickByHand();
  test.exporter.lst1.MarkByHand({0});
  test.exporter.cmdAdd.ClickByHand();
  test.files.contents[kListPath] = std::string(5000, 'x');
  EXPECT_EQ(Written(test), BlockOf("BUS"));
  EXPECT_EQ(test.desktop.shown, Rows{"save"});
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{"CAB"});
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{"BUS"});
  EXPECT_EQ(Written(test), BlockOf("BUS"));
}

TEST(WriteTuningFile, LeavesTableAndFlagAlone) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  ChooseAllForExport(test);
  Written(test);
  EXPECT_EQ(RecordsOf(test.vars.Cars), loaded);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(WriteTuningFile, ACancelIsAFailureThatPasses) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  ChooseAllForExport(test);
  test.desktop.choices.emplace_back();
  EXPECT_EQ(Click(test), FailureNumber::CancelSelected);
  EXPECT_EQ(test.desktop.shown, Rows{"save"});
}

TEST(WriteTuningFile, AFailingWritePasses) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  ChooseAllForExport(test);
  test.files.failingWrites[kListPath] = FailureNumber::PathNotFound;
  test.desktop.choices.push_back(FileChoice{kListPath, {}});
  EXPECT_EQ(Click(test), FailureNumber::PathNotFound);
  EXPECT_EQ(test.desktop.shown, Rows{"save"});
}

TEST(WriteTuningFile, WithoutATableOfVehiclesFailsOverAnEmptyFile) {
  TestSession test;
  test.OpenDefinition(
      CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0, 251, 0.7", "end"}));
  ChooseAllForExport(test);
  test.files.contents[kListPath] = "older";
  test.desktop.choices.push_back(FileChoice{kListPath, {}});
  EXPECT_EQ(Click(test), FailureNumber::SubscriptOutOfRange);
  EXPECT_EQ(test.Disk(kListPath), "");
}

}  // namespace
}  // namespace wheelwright::testing
