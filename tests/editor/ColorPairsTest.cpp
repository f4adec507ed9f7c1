// The colour pairs of a vehicle on screen.
#include "editor/ShowVehicle.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::string>;

ColorEntry Color(std::int16_t index, const std::string& name) { return {.Index = index, .ColorName = name}; }

// Index and position differ, as after a deletion.
std::vector<ColorEntry> Palette() { return {Color(4, "black"), Color(7, "red"), Color(9, "sky")}; }

const Rows& ShownPairs(TestSession& s, const std::string& model) {
  PickByHand(s.main.cmbAutos, model);
  return s.main.lstCarColors.Rows();
}

TEST(ColorPairs, NamesEachPairByTheNumbersOfThePalette) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{4, 4}}}, {"byl", {{7, 9}, {9, 4}}}});
  EXPECT_EQ(ShownPairs(s, "byl"), (Rows{"red - sky", "sky - black"}));
  EXPECT_EQ(s.vars.CurrentCarColor, 1);
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"black - black"}));
  EXPECT_EQ(s.vars.CurrentCarColor, 0);
  EXPECT_TRUE(s.vars.IsSaved);
}

TEST(ColorPairs, OfTwoColorsWithOneNumberTheLaterOneCounts) {
  TestSession s;
  HoldCarColors(s, {Color(4, "black"), Color(7, "early"), Color(7, "late")}, {{"axo", {{7, 4}}}});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"late - black"}));
}

TEST(ColorPairs, AModelOnTwoLinesShowsTheRowsOfBothAndTheSecondIsCurrent) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{4, 7}}}, {"byl", {{9, 9}}}, {"axo", {{7, 4}}}, {"cid", {{4, 4}}}});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"black - red", "red - black"}));
  EXPECT_EQ(s.vars.CurrentCarColor, 2);
}

TEST(ColorPairs, AnUnknownNumberInTheFirstPairBecomesThatOfTheFirstColor) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{99, 7}, {7, 9}}}, {"byl", {{7, 98}}}});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"black - red", "red - sky"}));
  EXPECT_EQ(s.vars.CarColors.At(0), (CarColorEntry{"axo", {{4, 7}, {7, 9}}}));
  EXPECT_EQ(ShownPairs(s, "byl"), (Rows{"red - black"}));
  EXPECT_EQ(s.vars.CarColors.At(1), (CarColorEntry{"byl", {{7, 4}}}));
  EXPECT_EQ(s.vars.Kopie_CarColors.At(0), (CarColorEntry{"axo", {{99, 7}, {7, 9}}}));
  EXPECT_TRUE(s.vars.IsSaved);
}

TEST(ColorPairs, ALaterUnknownNumberKeepsTheNameBeforeItAndIsNotRepaired) {
  TestSession s;
  const CarColorEntry entry = {"axo", {{7, 9}, {99, 4}, {9, 98}}};
  HoldCarColors(s, Palette(), {entry});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"red - sky", "red - black", "sky - black"}));
  EXPECT_EQ(s.vars.CarColors.At(0), entry);
}

TEST(ColorPairs, EachLineOfAModelIsRepairedOnItsOwn) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{7, 9}}}, {"axo", {{99, 98}}}});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"red - sky", "black - black"}));
  EXPECT_EQ(s.vars.CarColors.At(1), (CarColorEntry{"axo", {{4, 4}}}));
}

TEST(ColorPairs, AColorWithAnEmptyNameIsRepairedAsAnUnknownOne) {
  TestSession s;
  HoldCarColors(s, {Color(4, "black"), Color(7, "")}, {{"axo", {{4, 4}, {7, 4}}}});
  EXPECT_EQ(ShownPairs(s, "axo"), (Rows{"black - black", "black - black"}));
  EXPECT_EQ(s.vars.CarColors.At(0), (CarColorEntry{"axo", {{4, 4}, {4, 4}}}));
}

TEST(ColorPairs, AModelIsFoundByItsVeryBytes) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{4, 4}}}, {"Axo", {{7, 7}}}});
  PickByHand(s.main.cmbAutos, "Axo");
  EXPECT_EQ(s.main.lstCarColors.Rows(), (Rows{"red - red"}));
  EXPECT_EQ(s.vars.CurrentCarColor, 1);
}

TEST(ColorPairs, AnEntryWithoutARecordEmptiesTheListAndKeepsTheIndex) {
  TestSession s;
  HoldCarColors(s, Palette(), {{"axo", {{4, 4}}}, {"byl", {{7, 9}}}});
  ShownPairs(s, "byl");
  s.main.cmbAutos.AddRow("cid");
  EXPECT_EQ(ShownPairs(s, "cid"), Rows{});
  EXPECT_EQ(s.vars.CurrentCarColor, 1);
  EXPECT_EQ(s.main.cmbAutos.Text(), "cid");
}

TEST(ColorPairs, AColorFileShowsNoPicture) {
  TestSession s;
  s.files.contents["/app/gfx/axo.bmp"] = "";
  s.desktop.pictures["/app/gfx/axo.bmp"] = {10, 10};
  HoldCarColors(s, Palette(), {{"axo", {{4, 4}}}});
  ShownPairs(s, "axo");
  EXPECT_EQ(s.main.picCar.File(), "");
  EXPECT_EQ(s.main.picCar2.File(), "");
}

}  // namespace
}  // namespace wheelwright::testing
