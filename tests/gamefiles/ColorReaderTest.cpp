#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

const Texts kLoaded = {"open", "hourglass", "normal"};
constexpr const char* kNothingToChoose = "error: Error: 380 - Invalid property value";
constexpr const char* kNoNumber = "error: Error: 13 - Type mismatch";
constexpr const char* kOverflow = "error: Error: 6 - Overflow";

// A session that has just opened a colour file.
class Opened : public TestSession {
 public:
  explicit Opened(const std::string& text) { OpenColors(text); }
};

// A session that has opened a file with this palette and one vehicle.
class OpenedPalette : public Opened {
 public:
  explicit OpenedPalette(std::initializer_list<std::string_view> colors)
      : Opened("col\r\n" + CrLf(colors) + CrLf({"end", "car", "bus,0,0", "end"})) {}
};

// A session that has opened a file with a palette of two colours and these vehicles.
class OpenedPairs : public Opened {
 public:
  explicit OpenedPairs(std::initializer_list<std::string_view> vehicles)
      : Opened(CrLf({"col", "1,2,3\t# 0 red", "4,5,6\t# 1 sky", "end", "car"}) + CrLf(vehicles) +
               CrLf({"end"})) {}
};

// What the desktop shows when line `number` stops the load.
Texts StoppedAt(int number) {
  return {"open", "hourglass", "normal", "error: E150" + std::to_string(number)};
}

TEST(ColorReader, FillsTheTablesTheirSnapshotsAndTheLists) {
  Opened test(CrLf({"# head", "col", "5,15,25\t\t\t\t# 0 black", "245,246,247\t# 1 white", "end",
                    "car", "taxi, 0,1, 1,1", "bus, 1,0", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 5,15,25 black", "1: 245,246,247 white"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"taxi 0,1 1,1", "bus 1,0"}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), TextsOf(test.vars.Colors));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), TextsOf(test.vars.CarColors));
  const Texts labels = {"black - 5,15,25", "white - 245,246,247"};
  EXPECT_EQ(test.main.lstColors.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Texts{"bus", "taxi"}));
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ColorReader, ChoosesTheFirstColorsAndTheFirstVehicleButNoRowOfTheListBoxes) {
  OpenedPairs test({"taxi,0,1,1,1", "bus,1,0"});
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.cmbColor2.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{1, 2, 3}));
  EXPECT_EQ(test.main.picColor2.Color(), (std::array{1, 2, 3}));
  EXPECT_EQ(test.main.cmbAutos.Text(), "bus");
  EXPECT_EQ(test.vars.CurrentCarColor, 1);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"sky - red"});
  EXPECT_EQ(test.main.lstCarColors.Row(), RowList::kNoRow);
  EXPECT_EQ(test.main.lstColors.Row(), RowList::kNoRow);
  EXPECT_EQ(test.main.picFarbe.Color(), std::nullopt);
}

TEST(ColorReader, AColorWithoutATabIsBlackWhateverItSays) {
  OpenedPalette test({"10,20,30    # 0 navy", "40,50,60"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 0,0,0 navy", "1: 0,0,0 Color 1"}));
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"navy - 0,0,0", "Color 1 - 0,0,0"}));
}

TEST(ColorReader, AColorWithoutACommentIsNamedAfterItsPosition) {
  OpenedPalette test({"1,2,3\t", "4,5,6\tnavy", "7,8,9\t# 2 red"});
  EXPECT_EQ(TextsOf(test.vars.Colors),
            (Texts{"0: 1,2,3 Color 0", "1: 4,5,6 Color 1", "2: 7,8,9 red"}));
}

TEST(ColorReader, TheNumbersStandBeforeTheFirstTab) {
  OpenedPalette test({"1, 2 ,3 4\t99\t# 0 red", "5,6,7,8,9\t# 1 sky", "10,20,30,\t# 2 sea"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,2,34 red", "1: 5,6,7 sky", "2: 10,20,30 sea"}));
}

TEST(ColorReader, ACommentMarkBeforeTheTabBelongsToTheNumbers) {
  OpenedPalette test({"9,8,7#\t 1 sky"});
  EXPECT_EQ(test.LastShown(), kNoNumber);
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), Texts{"0: 9,8,0 "});
}

TEST(ColorReader, TheNameIsTheThirdWordOfTheComment) {
  OpenedPalette test({"1,1,1\t# 7 navy blue", "1,1,1\t#\t8\t\tsea  green", "1,1,1\t#9 pine wood",
                      "1,1,1\t# oak", "1,1,1\t# old oak tree", "1,1,1\t## x y", "1,1,1\t#"});
  EXPECT_EQ(TextsOf(test.vars.Colors),
            (Texts{"0: 1,1,1 navy", "1: 1,1,1 sea", "2: 1,1,1 wood", "3: 1,1,1 ", "4: 1,1,1 oak",
                   "5: 1,1,1 y", "6: 1,1,1 "}));
}

TEST(ColorReader, TheNumberOfTheCommentIsNotReadThePositionCounts) {
  OpenedPalette test({"1,1,1\t# 7 navy", "2,2,2\t# 3 oak"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 navy", "1: 2,2,2 oak"}));
}

TEST(ColorReader, LinesOfFourCharactersOrFewerAreSkippedAndNotCounted) {
  OpenedPalette test({"1,1,1\t# 0 oak", "", "# A", "1,2\t", "    ", "2,2,2\t# 1 elm"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 oak", "1: 2,2,2 elm"}));
}

TEST(ColorReader, ALongerCommentLineIsAColor) {
  OpenedPalette test({"# old greys", "# 10,", "1,1,1\t# 2 oak"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 0,0,0 greys", "1: 0,0,0 ", "2: 1,1,1 oak"}));
  OpenedPalette withTab({"# old\tgreys"});
  EXPECT_EQ(withTab.LastShown(), kNoNumber);
}

TEST(ColorReader, NumbersOfSixteenBitsAreTakenAsTheyAre) {
  OpenedPalette test({"300,-1,32767\t# 0 odd", "-32768,0,+7\t# 1 odd"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 300,-1,32767 odd", "1: -32768,0,7 odd"}));
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{255, 0, 255}));
}

TEST(ColorReader, NumbersAreRoundedHalvesToTheEvenOne) {
  OpenedPalette test({"0.5,1.5,2.5\t# 0 odd", "2.51,1e2,-0.5\t# 1 odd"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 0,2,2 odd", "1: 3,100,0 odd"}));
}

TEST(ColorReader, AComponentThatIsNoNumberOrMissingFailsTheLoad) {
  for (const char* line : {"1,x,3\t# 0 a", "1,2\t# 0 ab", "\t# 0 ab", "1,,3\t# 0 a", "0x1,2,3\t"}) {
    OpenedPalette test({line});
    EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNoNumber})) << line;
    EXPECT_FALSE(test.vars.Colors.IsAllocated());
    EXPECT_EQ(test.vars.CurrentFile, "");
  }
}

TEST(ColorReader, AComponentBeyondSixteenBitsIsAnOverflow) {
  for (const char* line : {"32768,0,0\t# 0 a", "0,-32769,0\t# 0 a", "0,0,99999999999\t"}) {
    OpenedPalette test({line});
    EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kOverflow})) << line;
  }
}

TEST(ColorReader, AFailureInThePaletteKeepsTheTablesOfBefore) {
  OpenedPalette test({"1,1,1\t# 0 oak"});
  test.OpenColors(
      CrLf({"col", "2,2,2\t# 0 elm", "x,2,2\t# 1 ash", "end", "car", "cab,0,0", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 1,1,1 oak"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), (Texts{"0: 2,2,2 elm", "1: 0,0,0 "}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"elm - 2,2,2"});
}

TEST(ColorReader, OnlyTheFirstPaletteIsRead) {
  Opened test(
      CrLf({"col", "1,1,1\t# 0 oak", "end", "col", "2,2,2\t# 0 elm", "end", "car", "bus,0,0"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, AnEndBeforeThePaletteIsNoEnd) {
  Opened test(CrLf({"end", "col", "1,1,1\t# 0 oak", "ending", "2,2,2\t# 1 elm", "car", "bus,0,0"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, PaletteMarksAreTheFirstThreeCharactersWithCaseAndWithoutTrimming) {
  Opened test(CrLf({"Col", " col", "9,9,9\t# 0 no", "colours of the bay", "1,1,1\t# 0 oak", " end#",
                    "End of it", "end# here", "9,9,9\t# 3 no", "car", "bus,0,0"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 oak", "1: 0,0,0 ", "2: 0,0,0 Color 2"}));
}

TEST(ColorReader, APaletteMarkWithACommentBehindItIsAMark) {
  Opened test(CrLf({"col # 90", "1,1,1\t# 0 oak", "end # of it", "car", "bus,0,0"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, WithoutAnEndThePaletteReachesIntoTheVehicles) {
  Opened test(CrLf({"col", "1,1,1\t# 0 oak", "car", "bus,0,0"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 oak", "1: 0,0,0 Color 1"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
}

TEST(ColorReader, APaletteWithoutAColorEndsInTheFailureOfChoosing) {
  Opened test(CrLf({"col", "end", "car", "bus,0,0", "end"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNothingToChoose}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 0,0,0 "});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0"});
  EXPECT_FALSE(test.vars.CarColors.IsAllocated());
}

TEST(ColorReader, AFileWithoutVehiclesEndsInTheFailureOfChoosing) {
  Opened test(CrLf({"col", "1,1,1\t# 0 oak", "end"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNothingToChoose}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{""});
  EXPECT_EQ(test.main.cmbColor1.Rows(), Texts{"oak - 1,1,1"});
}

TEST(ColorReader, VehicleLinesAreTakenApartAtTheirCommas) {
  OpenedPairs test({" t axi ,\t0, 1 , 1\t,1", "bus,32767,-32768", "cab,1.5,2.5"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors),
            (Texts{"taxi 0,1 1,1", "bus 32767,-32768", "cab 2,2"}));
}

TEST(ColorReader, AVehicleLineIsCutBeforeItsCommentAndShortLinesAreSkipped) {
  OpenedPairs test({"# bus,0,0", "", "taxi,0,1 # two, 3", "#"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"taxi 0,1"});
}

TEST(ColorReader, ACommaAtTheEndOfAVehicleLineIsNothing) {
  OpenedPairs test({"taxi,0,1,", "bus,1,0,1,1,\t"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"taxi 0,1", "bus 1,0 1,1"}));
}

TEST(ColorReader, TwoCommasAtTheEndOfAVehicleLineAreHalfAPairAndFail) {
  OpenedPairs test({"taxi,0,1,,"});
  EXPECT_EQ(test.LastShown(), kNoNumber);
}

TEST(ColorReader, ANameAndOneNumberAreTooFewFields) {
  OpenedPairs test({"bus,1,0", "taxi,0"});
  EXPECT_EQ(test.desktop.shown, StoppedAt(7));
}

TEST(ColorReader, ANameAndOneNumberWithACommaPassTheCountAndFailInTheConversion) {
  OpenedPairs test({"taxi,0,"});
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNoNumber}));
}

TEST(ColorReader, HalfAPairFailsTheLoad) {
  OpenedPairs test({"taxi,0,1,1"});
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNoNumber}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"taxi 0,1 1,0"});
}

TEST(ColorReader, AColorNumberThatIsNoneOrDoesNotFitFailsTheLoad) {
  EXPECT_EQ(OpenedPairs({"taxi,red,1"}).LastShown(), kNoNumber);
  EXPECT_EQ(OpenedPairs({"taxi,,1"}).LastShown(), kNoNumber);
  EXPECT_EQ(OpenedPairs({"taxi,0,32768"}).LastShown(), kOverflow);
}

TEST(ColorReader, ALineOfBlanksOrACommentBehindABlankFailsTheLoad) {
  for (const char* line : {" ", "\t", " # vans"}) {
    OpenedPairs test({"bus,1,0", line});
    EXPECT_EQ(test.desktop.shown, StoppedAt(7));
  }
}

TEST(ColorReader, ADamagedVehicleLineKeepsThePaletteOfTheFirstPass) {
  OpenedPairs test({"bus,1,0"});
  test.OpenColors(CrLf({"car", "cab,0,0", "cab,0", "end", "col", "9,9,9\t# 0 tar", "end"}));
  EXPECT_EQ(test.LastShown(), "error: E1503");
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 9,9,9 tar"});
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"tar - 9,9,9"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 1,0"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"cab 0,0"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{});
  EXPECT_EQ(test.vars.CurrentFile, "");
  EXPECT_FALSE(test.main.SSTab3.IsEnabled());
}

TEST(ColorReader, VehiclesStandBetweenCarOrAnyLongerWordAndEnd) {
  Opened test(CrLf({"car", "van,0,0", "end", "free, text", "col", "1,1,1\t# 0 oak", "end", "Car",
                    " car", "cars of the bay", "bus,0,0", "ending", "x"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"van 0,0", "bus 0,0"}));
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(ColorReader, ALineThatBeginsWithCarInsideTheSectionIsAVehicle) {
  OpenedPairs test({"cargovan,0,1", "carriage,1,1"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"cargovan 0,1", "carriage 1,1"}));
}

TEST(ColorReader, VehicleMarksWithACommentBehindThemAreMarks) {
  Opened test(
      CrLf({"col", "1,1,1\t# 0 oak", "end", "car # vehicles", "bus,0,0", "end#", "free text"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(ColorReader, ASecondFileLeavesTheOldLabelsInFrontOfTheNewOnes) {
  OpenedPairs test({"bus,1,0"});
  test.OpenColors(CrLf({"col", "9,9,9\t# 0 tar", "end", "car", "cab,0,0", "end"}));
  const Texts labels = {"red - 1,2,3", "sky - 4,5,6", "tar - 9,9,9"};
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{9, 9, 9}));
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"tar - 9,9,9"});
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 9,9,9 tar"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"cab 0,0"});
}

std::string PaletteOf(int colors) {
  std::string text = "col\r\n";
  for (int color = 0; color < colors; ++color) text += "1,1,1\t# 0 oak\r\n";
  return text;
}

TEST(ColorReader, ThePaletteCountsToSixteenBitsAndTheVehiclePassCountsTheLines) {
  Opened test(PaletteOf(32767));
  EXPECT_EQ(test.LastShown(), kOverflow);
  EXPECT_EQ(test.vars.Colors.Count(), 32767);
  EXPECT_EQ(test.vars.Colors.At(32766).Index, 32766);
}

TEST(ColorReader, OneColorMoreIsAnOverflowInThePalettePass) {
  Opened test(PaletteOf(32768));
  EXPECT_EQ(test.LastShown(), kOverflow);
  EXPECT_FALSE(test.vars.Colors.IsAllocated());
  EXPECT_EQ(test.vars.Kopie_Colors.Count(), 32768);
}

TEST(ColorReader, ReadsAsManyLinesAsSixteenBitsCount) {
  std::string text = PaletteOf(1) + CrLf({"end", "car"});
  for (int line = 5; line < 32768; ++line) text += "bus,0,0\r\n";
  Opened test(text);
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_EQ(test.vars.CarColors.Count(), 32763);
  test.desktop.shown.clear();
  test.OpenColors(text + "\r\n");
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kOverflow}));
}

TEST(ColorReader, AVehicleTakesAsManyPairsAsSixteenBitsCountFields) {
  std::string line = "bus";
  for (int pair = 0; pair < 16383; ++pair) line += ",0,1";
  OpenedPairs test({line});
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_EQ(test.vars.CarColors.At(0).Color1.size(), 16383U);
  EXPECT_EQ(OpenedPairs({line + ","}).LastShown(), kOverflow);
}

}  // namespace
}  // namespace wheelwright::testing
