#include "editor/ColorPairs.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

const Texts kAsked = {"question: E153"};

// A session that has opened a file with the colours Rot, Blau and Gelb and these vehicles; nothing
// is shown yet.
class Opened : public TestSession {
 public:
  explicit Opened(const std::string& vehicles) {
    OpenColors("col\r\n200,0,0\t# 0 Rot\r\n0,0,200\t# 1 Blau\r\n250,250,0\t# 2 Gelb\r\nend\r\ncar\r\n" +
               vehicles + "end\r\n");
    desktop.shown.clear();
  }

  void Remove(int row) {
    main.lstCarColors.ChooseByHand(row);
    desktop.answers.push_back(true);
    main.cmdRemColor.ClickByHand();
  }
  void DeleteColor(int row) {
    main.lstColors.ChooseByHand(row);
    desktop.answers.push_back(true);
    main.cmdDeleteColor.ClickByHand();
  }
};

TEST(PairEdits, LeavingThePalettePageFillsThePickListsAnew) {
  Opened test("bus,0,1\r\n");
  test.main.cmbColor1.ChooseByHand(1);
  test.main.cmbColor2.ChooseByHand(2);
  test.main.SSTab3.ClickByHand(kPairsTab);
  const Texts labels = {"Rot - 200,0,0", "Blau - 0,0,200", "Gelb - 250,250,0"};
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.cmbColor2.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{200, 0, 0}));
  EXPECT_EQ(test.main.picColor2.Color(), (std::array{200, 0, 0}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(PairEdits, AColorIsInThePickListsOnceThePalettePageHasBeenLeft) {
  Opened test("bus,0,1\r\n");
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(test.main.cmbColor1.Count(), 3);
  test.main.SSTab3.ClickByHand(kPairsTab);
  EXPECT_EQ(test.main.cmbColor1.Rows(),
            (Texts{"Rot - 200,0,0", "Blau - 0,0,200", "Gelb - 250,250,0", "Color3 - 0,128,255"}));
  EXPECT_EQ(test.main.cmbColor2.Rows(), test.main.cmbColor1.Rows());
}

TEST(PairEdits, LeavingThePageOfThePairsRefreshesNothing) {
  Opened test("bus,0,1\r\n");
  test.main.SSTab3.ClickByHand(kPairsTab);
  test.main.cmbColor1.ChooseByHand(2);
  test.main.cmdNewColor.ClickByHand();
  test.main.SSTab3.ClickByHand(kPaletteTab);
  EXPECT_EQ(test.main.cmbColor1.Count(), 3);
  EXPECT_EQ(test.main.cmbColor1.Row(), 2);
}

TEST(PairEdits, AClickOnTheTabInFrontRefreshesNothing) {
  Opened test("bus,0,1\r\n");
  test.main.cmbColor1.ChooseByHand(2);
  test.main.SSTab3.ClickByHand(kPaletteTab);
  EXPECT_EQ(test.main.cmbColor1.Row(), 2);
}

TEST(PairEdits, LeavingAnEmptyPaletteFails) {
  Opened test("bus,0,1\r\n");
  for (int color = 0; color < 3; ++color) test.DeleteColor(0);
  EXPECT_EQ(NumberThrownBy([&] { test.main.SSTab3.ClickByHand(kPairsTab); }), 380);
  EXPECT_EQ(test.main.cmbColor1.Count(), 0);
}

TEST(PairEdits, AChoiceFillsItsSwatchAndNothingElse) {
  Opened test("bus,0,1\r\n");
  test.main.lstCarColors.ChooseByHand(0);
  test.main.cmbColor1.ChooseByHand(2);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{250, 250, 0}));
  EXPECT_EQ(test.main.picColor2.Color(), (std::array{0, 0, 200}));
  test.main.cmbColor2.ChooseByHand(0);
  EXPECT_EQ(test.main.picColor2.Color(), (std::array{200, 0, 0}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1"});
  EXPECT_EQ(test.main.lstCarColors.Row(), 0);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(PairEdits, AColorBehindAShortenedPaletteCannotFillASwatch) {
  Opened test("bus,0,1\r\n");
  test.DeleteColor(1);
  EXPECT_EQ(NumberThrownBy([&] { test.main.cmbColor1.ChooseByHand(2); }), 9);
}

using Swatches = std::vector<std::vector<Rgb>>;

constexpr Rgb kRed = {200, 0, 0};
constexpr Rgb kBlue = {0, 0, 200};
constexpr Rgb kYellow = {250, 250, 0};

TEST(PairEdits, EachRowHasTheColorsOfItsPairAlsoWhereNamesAreTheSame) {
  Opened test("bus,0,1,2,2\r\nvan,1,1\r\nbus,2,0\r\n");
  EXPECT_EQ(test.main.lstCarColors.swatches, (Swatches{{kRed, kBlue}, {kYellow, kYellow}, {kYellow, kRed}}));
  test.vars.Colors.At(2).ColorName = "Rot";
  test.vars.Colors.At(2).Green = 300;
  test.vars.Colors.At(2).Blue = -1;
  test.main.cmbAutos.ChooseByHand(2);
  EXPECT_EQ(test.main.lstCarColors.swatches, (Swatches{{kBlue, kBlue}}));
  test.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(test.main.lstCarColors.swatches.at(1), (std::vector<Rgb>{{250, 255, 0}, {250, 255, 0}}));
}

TEST(PairEdits, TheColorsOfARowComeAndGoWithIt) {
  Opened test("bus,0,1,2,2\r\n");
  test.main.cmbColor1.ChooseByHand(1);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(test.main.lstCarColors.swatches, (Swatches{{kRed, kBlue}, {kYellow, kYellow}, {kBlue, kRed}}));
  test.Remove(1);
  EXPECT_EQ(test.main.lstCarColors.swatches, (Swatches{{kRed, kBlue}, {kBlue, kRed}}));
}

TEST(PairEdits, AClickOnAPairChoosesItsColors) {
  Opened test("bus,0,1,2,0\r\n");
  test.main.lstCarColors.ChooseByHand(1);
  EXPECT_EQ(test.main.cmbColor1.Text(), "Gelb - 250,250,0");
  EXPECT_EQ(test.main.cmbColor2.Text(), "Rot - 200,0,0");
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{250, 250, 0}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(PairEdits, AClickTakesTheNumbersAsRowsAndNotAsIndexes) {
  Opened test("bus,1,2\r\n");
  test.DeleteColor(0);
  test.main.SSTab3.ClickByHand(kPairsTab);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Blau - Gelb"});
  EXPECT_EQ(NumberThrownBy([&] { test.main.lstCarColors.ChooseByHand(0); }), 380);
  EXPECT_EQ(test.main.cmbColor1.Text(), "Gelb - 250,250,0");
}

TEST(PairEdits, AnUnknownNumberBehindTheFirstPairCannotBeShown) {
  Opened test("bus,0,1,99,0\r\n");
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Rot - Rot"}));
  EXPECT_EQ(NumberThrownBy([&] { test.main.lstCarColors.ChooseByHand(1); }), 380);
}

TEST(PairEdits, AClickWithoutRowsAndChoiceDoesNothing) {
  TestSession test;
  test.main.lstCarColors.clicked();
  EXPECT_EQ(test.main.cmbColor1.Row(), RowList::kNoRow);
}

TEST(PairEdits, AnAddedPairHoldsTheChosenRows) {
  Opened test("bus,0,1\r\n");
  test.main.lstCarColors.ChooseByHand(0);
  test.main.cmbColor1.ChooseByHand(2);
  test.main.cmbColor2.ChooseByHand(1);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 2,1"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Gelb - Blau"}));
  EXPECT_EQ(test.main.lstCarColors.Row(), 0);
  EXPECT_EQ(test.desktop.shown, Texts{});
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,1"});
}

TEST(PairEdits, APairThatIsThereAlreadyIsAddedOnceMore) {
  Opened test("bus,0,0\r\n");
  test.main.cmdAddColor.ClickByHand();
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0 0,0 0,0"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Rot", "Rot - Rot", "Rot - Rot"}));
}

TEST(PairEdits, OnlyTheRangeOfAnIndexLimitsTheNumberOfPairs) {
  Opened test("bus,0,1\r\n");
  constexpr int kMost = 32768;
  for (int pairs = 1; pairs < kMost; ++pairs) test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(test.main.lstCarColors.Count(), kMost);
  EXPECT_EQ(NumberThrownBy([&] { test.main.cmdAddColor.ClickByHand(); }), 6);
  EXPECT_EQ(test.vars.CarColors.At(0).Pairs.size(), std::size_t{kMost});
}

TEST(PairEdits, ThePairGoesToTheVehicleOnScreen) {
  Opened test("bus,0,1\r\ncab,1,1\r\n");
  test.main.cmbAutos.ChooseByHand(1);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"bus 0,1", "cab 1,1 0,0"}));
}

TEST(PairEdits, AVehicleOnTwoLinesGetsThePairOnTheSecond) {
  Opened test("bus,0,1\r\ncab,1,1\r\nbus,2,2\r\n");
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"bus 0,1", "cab 1,1", "bus 2,2 0,0"}));
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Gelb - Gelb", "Rot - Rot"}));
}

TEST(PairEdits, AfterADeletionTheRowNumberIsStoredAndNotTheIndex) {
  Opened test("bus,0,1\r\n");
  test.DeleteColor(0);
  test.main.SSTab3.ClickByHand(kPairsTab);
  test.main.cmbColor2.ChooseByHand(1);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 0,1"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Blau - Gelb"}));
}

TEST(PairEdits, WithoutAChoiceTheStoredNumberIsMinusOneAndTheLabelFails) {
  for (PickList FrmMain::*list : {&FrmMain::cmbColor1, &FrmMain::cmbColor2}) {
    Opened test("bus,0,1\r\n");
    (test.main.*list).Clear();
    EXPECT_EQ(NumberThrownBy([&] { test.main.cmdAddColor.ClickByHand(); }), 9);
    EXPECT_EQ(TextsOf(test.vars.CarColors),
              Texts{list == &FrmMain::cmbColor1 ? "bus 0,1 -1,0" : "bus 0,1 0,-1"});
    EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Rot - Blau"});
    EXPECT_TRUE(test.vars.IsSaved);
  }
}

TEST(PairEdits, TheLastPairWhoseFirstColorStandsInTheRowIsRemoved) {
  Opened test("bus,0,1,0,2,1,0\r\n");
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Rot - Gelb", "Blau - Rot"}));
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 0,2"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Rot - Gelb"}));
  EXPECT_EQ(test.main.lstCarColors.Row(), 0);
  EXPECT_EQ(test.desktop.shown, kAsked);
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,1 0,2 1,0"});
}

TEST(PairEdits, ARemovalShowsTheFirstPairThatIsLeft) {
  Opened test("bus,1,0,2,2\r\n");
  test.Remove(1);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Blau - Rot"});
  EXPECT_EQ(test.main.cmbColor1.Text(), "Blau - 0,0,200");
  EXPECT_EQ(test.main.cmbColor2.Text(), "Rot - 200,0,0");
}

TEST(PairEdits, OfTwoEqualRowsTheLastOneGoesWhicheverIsChosen) {
  for (const int row : {0, 2}) {
    Opened test("bus,0,0,1,1,0,0\r\n");
    test.Remove(row);
    EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0 1,1"});
    EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Rot", "Blau - Blau"}));
  }
}

TEST(PairEdits, NoRemovesNothing) {
  Opened test("bus,0,1,0,2\r\n");
  test.main.lstCarColors.ChooseByHand(1);
  test.desktop.answers.push_back(false);
  test.main.cmdRemColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, kAsked);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 0,2"});
  EXPECT_EQ(test.main.lstCarColors.Row(), 1);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(PairEdits, WithoutAChoiceOrWithoutRowsNothingIsAsked) {
  Opened test("bus,0,1\r\n");
  test.main.cmdRemColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{});
  test.Remove(0);
  test.desktop.shown.clear();
  test.main.cmdRemColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{});
}

TEST(PairEdits, TheNameIsSearchedIgnoringCaseAlsoInsideWords) {
  Opened test("bus,1,1,0,0\r\n");
  test.vars.Colors.At(0).ColorName = "lAu";
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 1,1"});
  Opened umlaut("bus,1,1,0,0\r\n");
  umlaut.vars.Colors.At(0).ColorName = "\xDC";
  umlaut.main.lstCarColors.ReplaceRow(0, "Blau - \xFC");
  umlaut.Remove(0);
  EXPECT_EQ(TextsOf(umlaut.vars.CarColors), Texts{"bus 1,1"});
}

TEST(PairEdits, AnEmptyNameCountsAsFound) {
  Opened test("bus,1,1,0,0\r\n");
  test.vars.Colors.At(0).ColorName = "";
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 1,1"});
}

TEST(PairEdits, OnlyTheNameOfTheFirstColorIsSearched) {
  Opened test("bus,0,1,2,0\r\n");
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 2,0"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Gelb - Rot"});
}

TEST(PairEdits, OfTwoColorsWithOneIndexTheLaterNameIsSearched) {
  Opened test("bus,0,1,2,2\r\n");
  test.vars.Colors.At(1).Index = 0;
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 2,2"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Gelb - Gelb"});
}

TEST(PairEdits, ALaterNumberWithoutAColorKeepsTheColorOfThePairBeforeIt) {
  Opened test("bus,0,1,99,1,2,2\r\n");
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Rot - Blau", "Gelb - Gelb"}));
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 2,2"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Gelb - Gelb"}));
}

TEST(PairEdits, ARowThatHoldsNoFirstColorsNameRemovesNothingSilently) {
  Opened test("bus,0,1,2,2\r\n");
  test.main.lstColors.ChooseByHand(0);
  test.main.txtColorName.EditByHand("Pink");
  test.vars.IsSaved = true;
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1 2,2"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Blau", "Gelb - Gelb"}));
  EXPECT_EQ(test.desktop.shown, kAsked);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(PairEdits, AFirstColorThatIsGoneFromThePaletteFailsTheRemoval) {
  Opened test("bus,0,1\r\n");
  test.DeleteColor(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1"});
  EXPECT_EQ(NumberThrownBy([&] { test.Remove(0); }), 9);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1"});
}

TEST(PairEdits, TheOnlyPairLeavesOnePlaceOfNoughtsAndAnEmptyList) {
  Opened test("bus,1,2\r\n");
  test.Remove(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{});
  EXPECT_FALSE(test.vars.IsSaved);
  test.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Rot - Rot"});
  test.main.cmdSave.ClickByHand();
  EXPECT_NE(test.Disk(TestSession::kColorPath).find("car\r\nbus, 0, 0\r\nend\r\n"), std::string::npos);
}

TEST(PairEdits, APairAddedBehindTheLeftoverStandsInRowNoughtUntilTheNextDisplay) {
  Opened test("bus,1,2\r\n");
  test.Remove(0);
  test.main.cmbColor1.ChooseByHand(2);
  test.main.cmbColor2.ChooseByHand(1);
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0 2,1"});
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"Gelb - Blau"});
  test.main.lstCarColors.ChooseByHand(0);
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  test.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(test.main.lstCarColors.Rows(), (Texts{"Rot - Rot", "Gelb - Blau"}));
}

TEST(PairEdits, ARowOfAnotherEntryOfTheSameNameIsReadInTheCurrentOne) {
  Opened test("bus,0,1,1,1,2,2\r\nbus,2,1\r\n");
  test.main.lstCarColors.ChooseByHand(0);
  EXPECT_EQ(test.main.cmbColor1.Text(), "Gelb - 250,250,0");
  EXPECT_EQ(NumberThrownBy([&] { test.main.lstCarColors.ChooseByHand(1); }), 9);
}

TEST(PairEdits, RowsWithoutAChoiceAreFailure9) {
  Opened test("bus,0,1\r\n");
  test.main.cmbAutos.ChooseByHand(0);
  test.main.lstCarColors.Clear();
  test.main.lstCarColors.AddRow("Rot - Blau");
  EXPECT_EQ(NumberThrownBy([&] { ShowPair(test.session); }), 9);
}

}  // namespace
}  // namespace wheelwright::testing
