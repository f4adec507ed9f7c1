#include "forms/Wiring.h"
#include "gamefiles/LoadProblems.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<ReportList::Row>;

const std::string kShortBus = CrLf({"BUS 1500.0 2.60"});
const Rows kShortBusRows = {{"BUS", "", "E102: 3 E103"}};

TEST(LoadProblemsTest, TheWindowAsItIsBuilt) {
  const FrmError window;
  EXPECT_EQ(window.Title(), "Errors");
  EXPECT_EQ(window.lstErrors.Columns(), (ReportList::Row{"Auto", "Parameter", "Error"}));
  EXPECT_EQ(window.cmdClose.Caption(), "Schliessen");
  EXPECT_FALSE(window.IsVisible());
}

TEST(LoadProblemsTest, ALanguageReachesTheWindowBeforeItWasEverShown) {
  const TestSession test;
  EXPECT_EQ(test.error.lstErrors.Columns(), (ReportList::Row{"E107", "E108", "E109"}));
  EXPECT_EQ(test.error.cmdClose.Caption(), "E106");
  EXPECT_EQ(test.error.Title(), "Errors");
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(LoadProblemsTest, TheWindowStartsEmptyAndInvisible) {
  TestSession test;
  StartUp(test.session, "/app");
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(LoadProblemsTest, RowsStayInOrderOfArrivalAndShowTheWindow) {
  TestSession test;
  test.main.txtGewicht.label.SetCaption("Mass & more");
  AddLoadProblems(test.session, {BadToken("TAXI", 1)});
  EXPECT_TRUE(test.error.IsVisible());
  AddLoadProblems(test.session, {WrongCount("BUS", 31), BadToken("4711", 0)});
  EXPECT_EQ(test.error.lstErrors.Rows(),
            (Rows{{"TAXI", "Mass & more", "E105"}, {"BUS", "", "E102: 31 E103"}, {"4711", "E015", "E104"}}));
  EXPECT_TRUE(test.error.IsVisible());
}

TEST(LoadProblemsTest, NoProblemShowsNothing) {
  TestSession test;
  AddLoadProblems(test.session, {});
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(LoadProblemsTest, ABadTokenIsNamedByTheCaptionOfItsLabel) {
  for (int index = 0; index < kTokensOfAVehicle; ++index) {
    const TokenRule& rule = kTokenRules[static_cast<std::size_t>(index)];
    if (rule.check == TokenCheck::None) continue;
    TestSession test;
    AddLoadProblems(test.session, {BadToken("BUS", index)});
    const std::string caption = CaptionOf(rule, test.main);
    const char* const text = rule.check == TokenCheck::MustNotBeNumeric ? "E104" : "E105";
    EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", caption, text}})) << "token " << index;
  }
}

TEST(LoadProblemsTest, RowsOfTheFirstPassAreGoneAndTheWindowStays) {
  TestSession test;
  test.OpenHandling(CrLf({"  4711 1500.0 2.6 9.1", VehicleLineOf("BUS")}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_TRUE(test.error.IsVisible());
}

TEST(LoadProblemsTest, TheCloseButtonHidesTheWindowAndKeepsTheRows) {
  TestSession test;
  test.OpenHandling(kShortBus);
  test.error.cmdClose.ClickByHand();
  EXPECT_FALSE(test.error.IsVisible());
  EXPECT_EQ(test.error.lstErrors.Rows(), kShortBusRows);
}

TEST(LoadProblemsTest, TheCloseBoxHidesTheWindowAndTheNextProblemShowsItAgain) {
  TestSession test;
  test.OpenHandling(kShortBus);
  test.error.closeRequested();
  EXPECT_FALSE(test.error.IsVisible());
  EXPECT_EQ(test.error.lstErrors.Rows(), kShortBusRows);
  AddLoadProblems(test.session, {WrongCount("TAXI", 5)});
  EXPECT_TRUE(test.error.IsVisible());
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", "", "E102: 3 E103"}, {"TAXI", "", "E102: 5 E103"}}));
}

TEST(LoadProblemsTest, AFileWithoutProblemsEmptiesTheListOfAnOpenWindow) {
  TestSession test;
  test.OpenHandling(kShortBus);
  test.OpenHandling(CrLf({VehicleLineOf("TAXI")}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_TRUE(test.error.IsVisible());
}

TEST(LoadProblemsTest, AFileWithoutProblemsDoesntShowAHiddenWindow) {
  TestSession test;
  test.OpenHandling(kShortBus);
  test.error.cmdClose.ClickByHand();
  test.OpenHandling(CrLf({VehicleLineOf("TAXI")}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(LoadProblemsTest, OtherKindsOfFileLeaveListAndWindowAsTheyWere) {
  TestSession test;
  test.OpenHandling(kShortBus);
  test.OpenDefinition(CrLf({"cars", "90, bus, bus, car, BUS, BUS, null, normal, 10, 7, 0, 164, 0.8", "end"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), std::vector<std::string>{"BUS"});
  EXPECT_EQ(test.error.lstErrors.Rows(), kShortBusRows);
  EXPECT_TRUE(test.error.IsVisible());
  test.error.cmdClose.ClickByHand();
  test.OpenColors(CrLf({"col", "1,2,3\t# 0 black", "end", "car", "bus, 0,0", "end"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), std::vector<std::string>{"bus"});
  EXPECT_EQ(test.error.lstErrors.Rows(), kShortBusRows);
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(LoadProblemsTest, AProblemDoesntStopTheLoad) {
  TestSession test;
  test.OpenHandling(kShortBus);
  EXPECT_EQ(test.desktop.shown, (std::vector<std::string>{"open", "hourglass", "normal"}));
  EXPECT_TRUE(test.main.cmdSave.IsEnabled());
  EXPECT_EQ(test.main.txtBreite.Text(), "2.60");
  EXPECT_EQ(test.main.txtHoehe.Text(), "0.0");
}

}  // namespace
}  // namespace wheelwright::testing
