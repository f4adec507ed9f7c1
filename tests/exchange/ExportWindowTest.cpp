#include "exchange/ExportImport.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::string>;
using Marks = std::vector<int>;

const std::string kFourVehicles =
    CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS"), VehicleLineOf("AMBULAN"), VehicleLineOf("VAN")});

void OpenWindow(TestSession& test) {
  test.OpenHandling(kFourVehicles);
  test.main.cmdExportCar.ClickByHand();
}

TEST(ExportWindow, ComesUpWithEveryVehicleOnTheLeft) {
  TestSession test;
  test.OpenHandling(kFourVehicles);
  EXPECT_FALSE(test.exporter.IsVisible());
  test.main.cmdExportCar.ClickByHand();
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, IsFilledBeforeItComesUp) {
  TestSession test;
  test.OpenHandling(kFourVehicles);
  int rows = 0;
  test.exporter.notice = [&] { rows = test.exporter.lst1.Count(); };
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(rows, 4);
}

TEST(ExportWindow, ComesUpEmptyWithoutAFile) {
  TestSession test;
  test.main.cmdExportCar.ClickByHand();
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{});
}

TEST(ExportWindow, IsCaptionedEachTimeItIsLoaded) {
  TestSession test;
  test.vars.Lang[106] = "Shut";
  test.vars.Lang[110] = "Here";
  test.vars.Lang[111] = "There";
  test.vars.Lang[112] = "Write";
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(test.exporter.cmdClose.Caption(), "Shut");
  EXPECT_EQ(test.exporter.lblExportCar.Caption(), "Here");
  EXPECT_EQ(test.exporter.lblExport.Caption(), "There");
  EXPECT_EQ(test.exporter.cmdExport.Caption(), "Write");
}

TEST(ExportWindow, KeepsTheCaptionsThatAreInNoLanguage) {
  TestSession test;
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(test.exporter.cmdAdd.Caption(), ">");
  EXPECT_EQ(test.exporter.cmdDel.Caption(), "<");
  EXPECT_EQ(test.exporter.cmdAddAll.Caption(), ">>");
  EXPECT_EQ(test.exporter.cmdDelAll.Caption(), "<<");
  EXPECT_EQ(test.exporter.Spez.Caption(), "Spez");
  EXPECT_EQ(test.exporter.Title(), "Export");
}

TEST(ExportWindow, HidesTheTuningButton) {
  TestSession test;
  test.main.cmdExportCar.ClickByHand();
  EXPECT_FALSE(test.exporter.Spez.IsVisible());
}

TEST(ExportWindow, MarkedRowsMoveToTheRightAndSortThemselves) {
  TestSession test;
  OpenWindow(test);
  test.exporter.lst1.MarkByHand({1, 3});
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "TAXI"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), (Rows{"BUS", "VAN"}));
  test.exporter.lst1.MarkByHand({0, 1});
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{});
  EXPECT_EQ(test.exporter.lst2.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
}

TEST(ExportWindow, MarkedRowsMoveBackToTheLeft) {
  TestSession test;
  OpenWindow(test);
  test.exporter.cmdAddAll.ClickByHand();
  test.exporter.lst2.MarkByHand({0, 2});
  test.exporter.cmdDel.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "TAXI"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), (Rows{"BUS", "VAN"}));
}

TEST(ExportWindow, WithoutMarksNothingMoves) {
  TestSession test;
  OpenWindow(test);
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Count(), 4);
  EXPECT_EQ(test.exporter.lst2.Count(), 0);
  test.exporter.cmdAddAll.ClickByHand();
  test.exporter.cmdDel.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Count(), 0);
  EXPECT_EQ(test.exporter.lst2.Count(), 4);
}

TEST(ExportWindow, AllRowsMoveWhateverIsMarked) {
  TestSession test;
  OpenWindow(test);
  test.exporter.lst1.MarkByHand({2});
  test.exporter.cmdAddAll.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{});
  EXPECT_EQ(test.exporter.lst2.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  test.exporter.cmdDelAll.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, MovedRowsArriveUnmarkedAndOthersKeepTheirMarks) {
  TestSession test;
  OpenWindow(test);
  test.exporter.lst1.MarkByHand({0, 1});
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(test.exporter.lst2.Marked(), Marks{});
  test.exporter.lst1.MarkByHand({0});
  test.exporter.cmdDelAll.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_EQ(test.exporter.lst1.Marked(), Marks{2});
}

TEST(ExportWindow, OneOfTwoEqualNamesMovesAlone) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS"), VehicleLineOf("BUS")}));
  test.main.cmdExportCar.ClickByHand();
  test.exporter.lst1.MarkByHand({1});
  test.exporter.cmdAdd.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{"BUS"});
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{"BUS"});
}

TEST(ExportWindow, LaterChangesOfTheMainWindowDontReachIt) {
  TestSession test;
  OpenWindow(test);
  test.main.txtAutoname.EditByHand("TRUCK");
  test.main.cmdNewCar.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
}

TEST(ExportWindow, IsRebuiltByTheNextClickWhileItIsUp) {
  TestSession test;
  OpenWindow(test);
  test.exporter.cmdAddAll.ClickByHand();
  test.main.txtAutoname.EditByHand("TRUCK");
  test.main.cmdExportCar.ClickByHand();
  EXPECT_TRUE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"BUS", "TAXI", "TRUCK", "VAN"}));
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, ItsCloseButtonUnloadsIt) {
  TestSession test;
  OpenWindow(test);
  test.exporter.cmdAddAll.ClickByHand();
  test.exporter.cmdClose.ClickByHand();
  EXPECT_FALSE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, ItsCloseBoxUnloadsIt) {
  TestSession test;
  OpenWindow(test);
  test.exporter.cmdAddAll.ClickByHand();
  test.exporter.closeRequested();
  EXPECT_FALSE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, ClosedItHoldsNothingOnEitherSide) {
  TestSession test;
  OpenWindow(test);
  test.exporter.lst1.MarkByHand({0});
  test.exporter.cmdAdd.ClickByHand();
  test.exporter.cmdClose.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), Rows{});
  EXPECT_EQ(test.exporter.lst2.Rows(), Rows{});
}

TEST(ExportWindow, StartsAnewAfterItWasClosed) {
  TestSession test;
  OpenWindow(test);
  test.exporter.lst1.MarkByHand({0});
  test.exporter.cmdClose.ClickByHand();
  test.main.cmdExportCar.ClickByHand();
  EXPECT_EQ(test.exporter.lst1.Rows(), (Rows{"AMBULAN", "BUS", "TAXI", "VAN"}));
  EXPECT_EQ(test.exporter.lst1.Marked(), Marks{});
}

}  // namespace
}  // namespace wheelwright::testing
