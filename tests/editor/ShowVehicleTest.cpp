// What the display of every kind of file has in common.
#include "editor/ShowVehicle.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

std::vector<std::string> TextsOn(FrmMain& main) {
  std::vector<std::string> texts;
  for (const Control* control : main.Controls()) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) texts.push_back(box->Text());
    if (const auto* label = dynamic_cast<const Label*>(control)) texts.push_back(label->Caption());
    if (const auto* list = dynamic_cast<const RowList*>(control)) texts.push_back(list->Text());
  }
  return texts;
}

void HoldOneOfEach(TestSession& s) {
  HoldCarColors(s, {{.Index = 0, .ColorName = "red"}}, {{"axo", {{0, 0}}}, {"byl", {{7, 0}}}});
  HoldIdes(s, {TaggedIde("AXO", "a"), TaggedIde("BYL", "b")});
  HoldCars(s, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b")});
}

void ShowKind(TestSession& s, FileType kind, const std::string& key) {
  s.vars.CurrentFileType = kind;
  s.main.cmbAutos.Clear();
  s.main.cmbAutos.AddRow(key);
  s.main.cmbAutos.Choose(0);
}

TEST(ShowVehicle, DoesNothingWhileTheListIsEmpty) {
  TestSession s;
  s.vars.CurrentCar = 3;
  s.vars.CurrentIde = 4;
  s.vars.CurrentCarColor = 5;
  s.vars.IsSaved = false;
  const std::vector<std::string> before = TextsOn(s.main);
  for (const FileType kind : {kHandlingFile, kDefinitionFile, kColorFile}) {
    s.vars.CurrentFileType = kind;
    EXPECT_NO_THROW(ShowVehicle(s.session));
  }
  EXPECT_EQ(TextsOn(s.main), before);
  EXPECT_EQ(s.vars.CurrentCar, 3);
  EXPECT_EQ(s.vars.CurrentIde, 4);
  EXPECT_EQ(s.vars.CurrentCarColor, 5);
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(ShowVehicle, DoesNothingForAnyOtherKindOfFile) {
  TestSession s;
  HoldOneOfEach(s);
  s.vars.CurrentFileType = 3;
  s.main.cmbAutos.Clear();
  const std::vector<std::string> before = TextsOn(s.main);
  s.main.cmbAutos.AddRow("BYL");
  s.main.cmbAutos.Choose(0);
  s.main.cmbAutos.Clear();
  EXPECT_EQ(TextsOn(s.main), before);
  EXPECT_EQ(s.vars.CurrentCar, 0);
  EXPECT_EQ(s.vars.CurrentIde, 0);
  EXPECT_EQ(s.vars.CurrentCarColor, 0);
}

TEST(ShowVehicle, LeavesASavedFileSaved) {
  TestSession s;
  HoldOneOfEach(s);
  ShowKind(s, kHandlingFile, "BYL");
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass b");
  EXPECT_TRUE(s.vars.IsSaved);
  ShowKind(s, kDefinitionFile, "BYL");
  EXPECT_EQ(s.main.txtID.Text(), "ID b");
  EXPECT_TRUE(s.vars.IsSaved);
  ShowKind(s, kColorFile, "byl");
  EXPECT_EQ(s.main.lstCarColors.Count(), 1);
  EXPECT_TRUE(s.vars.IsSaved);
}

TEST(ShowVehicle, LeavesAnEditedFileEdited) {
  for (const FileType kind : {kHandlingFile, kDefinitionFile, kColorFile}) {
    TestSession s;
    HoldOneOfEach(s);
    s.vars.IsSaved = false;
    ShowKind(s, kind, kind == kColorFile ? "byl" : "BYL");
    EXPECT_FALSE(s.vars.IsSaved) << kind;
  }
}

TEST(ShowVehicle, RunsOnEveryChoiceInTheList) {
  TestSession s;
  HoldOneOfEach(s);
  s.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass a");
  s.main.cmbAutos.ChooseByHand(1);
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass b");
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass a");
}

TEST(ShowVehicle, AHandlingFileUsesTheIndexOfTheHandlingTableOnly) {
  TestSession s;
  HoldOneOfEach(s);
  s.vars.CurrentIde = 7;
  s.vars.CurrentCarColor = 8;
  ShowKind(s, kHandlingFile, "BYL");
  EXPECT_EQ(s.vars.CurrentCar, 1);
  EXPECT_EQ(s.vars.CurrentIde, 7);
  EXPECT_EQ(s.vars.CurrentCarColor, 8);
}

TEST(ShowVehicle, ADefinitionFileUsesTheIndexOfTheDefinitionTableOnly) {
  TestSession s;
  HoldOneOfEach(s);
  s.vars.CurrentCar = 7;
  s.vars.CurrentCarColor = 8;
  ShowKind(s, kDefinitionFile, "BYL");
  EXPECT_EQ(s.vars.CurrentCar, 7);
  EXPECT_EQ(s.vars.CurrentIde, 1);
  EXPECT_EQ(s.vars.CurrentCarColor, 8);
}

TEST(ShowVehicle, AColorFileUsesTheIndexOfTheColorListsOnly) {
  TestSession s;
  HoldOneOfEach(s);
  s.vars.CurrentCar = 7;
  s.vars.CurrentIde = 8;
  ShowKind(s, kColorFile, "byl");
  EXPECT_EQ(s.vars.CurrentCar, 7);
  EXPECT_EQ(s.vars.CurrentIde, 8);
  EXPECT_EQ(s.vars.CurrentCarColor, 1);
}

}  // namespace
}  // namespace wheelwright::testing
