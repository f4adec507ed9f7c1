#include "formats/ColorFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

constexpr int kNoNumber = 13;
constexpr int kOverflow = 6;

// What the two passes over a text leave, and the number of the failure that ended one, 0 for none.
struct Read {
  explicit Read(const std::string& text)
      : failure(NumberThrownBy([&] {
          ReadPalette(text, palette);
          ReadPairs(text, pairs);
        })) {}

  Texts Colors() const { return TextsOf(palette.colors); }
  Texts Pairs() const { return TextsOf(pairs.records); }

  PaletteSection palette;
  PairsSection pairs;
  int failure;
};

// A text with a palette of these lines and one vehicle.
std::string Palette(std::initializer_list<std::string_view> colors) {
  return "col\r\n" + CrLf(colors) + CrLf({"end", "car", "bus,0,0", "end"});
}

// A text with a palette of two colours and these vehicles.
std::string Vehicles(std::initializer_list<std::string_view> vehicles) {
  return CrLf({"col", "1,2,3\t# 0 red", "4,5,6\t# 1 sky", "end", "car"}) + CrLf(vehicles) + CrLf({"end"});
}

TEST(ColorReader, AColorWithoutATabIsBlackWhateverItSays) {
  const Read test(Palette({"10,20,30    # 0 navy", "40,50,60"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 0,0,0 navy", "1: 0,0,0 Color 1"}));
}

TEST(ColorReader, AColorWithoutACommentIsNamedAfterItsPosition) {
  const Read test(Palette({"1,2,3\t", "4,5,6\tnavy", "7,8,9\t# 2 red"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,2,3 Color 0", "1: 4,5,6 Color 1", "2: 7,8,9 red"}));
}

TEST(ColorReader, TheNumbersStandBeforeTheFirstTab) {
  const Read test(Palette({"1, 2 ,3 4\t99\t# 0 red", "5,6,7,8,9\t# 1 sky", "10,20,30,\t# 2 sea"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,2,34 red", "1: 5,6,7 sky", "2: 10,20,30 sea"}));
}

TEST(ColorReader, ACommentMarkBeforeTheTabBelongsToTheNumbers) {
  const Read test(Palette({"9,8,7#\t 1 sky"}));
  EXPECT_EQ(test.failure, kNoNumber);
  EXPECT_EQ(test.Colors(), Texts{"0: 9,8,0 "});
}

TEST(ColorReader, TheNameIsTheThirdWordOfTheComment) {
  const Read test(Palette({"1,1,1\t# 7 navy blue", "1,1,1\t#\t8\t\tsea  green", "1,1,1\t#9 pine wood",
                           "1,1,1\t# oak", "1,1,1\t# old oak tree", "1,1,1\t## x y", "1,1,1\t#"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,1,1 navy", "1: 1,1,1 sea", "2: 1,1,1 wood", "3: 1,1,1 ",
                                  "4: 1,1,1 oak", "5: 1,1,1 y", "6: 1,1,1 "}));
}

TEST(ColorReader, TheNumberOfTheCommentIsNotReadThePositionCounts) {
  const Read test(Palette({"1,1,1\t# 7 navy", "2,2,2\t# 3 oak"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,1,1 navy", "1: 2,2,2 oak"}));
}

TEST(ColorReader, LinesOfFourCharactersOrFewerAreSkippedAndNotCounted) {
  const Read test(Palette({"1,1,1\t# 0 oak", "", "# A", "1,2\t", "    ", "2,2,2\t# 1 elm"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,1,1 oak", "1: 2,2,2 elm"}));
}

TEST(ColorReader, ALongerCommentLineIsAColor) {
  const Read test(Palette({"# old greys", "# 10,", "1,1,1\t# 2 oak"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 0,0,0 greys", "1: 0,0,0 ", "2: 1,1,1 oak"}));
  const Read withTab(Palette({"# old\tgreys"}));
  EXPECT_EQ(withTab.failure, kNoNumber);
}

TEST(ColorReader, NumbersOfSixteenBitsAreTakenAsTheyAre) {
  const Read test(Palette({"300,-1,32767\t# 0 odd", "-32768,0,+7\t# 1 odd"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 300,-1,32767 odd", "1: -32768,0,7 odd"}));
}

TEST(ColorReader, NumbersAreRoundedHalvesToTheEvenOne) {
  const Read test(Palette({"0.5,1.5,2.5\t# 0 odd", "2.51,1e2,-0.5\t# 1 odd"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 0,2,2 odd", "1: 3,100,0 odd"}));
}

TEST(ColorReader, AComponentThatIsNoNumberOrMissingFailsTheLoad) {
  for (const char* line : {"1,x,3\t# 0 a", "1,2\t# 0 ab", "\t# 0 ab", "1,,3\t# 0 a", "0x1,2,3\t"}) {
    const Read test(Palette({line}));
    EXPECT_EQ(test.failure, kNoNumber) << line;
  }
}

TEST(ColorReader, AComponentBeyondSixteenBitsIsAnOverflow) {
  for (const char* line : {"32768,0,0\t# 0 a", "0,-32769,0\t# 0 a", "0,0,99999999999\t"}) {
    const Read test(Palette({line}));
    EXPECT_EQ(test.failure, kOverflow) << line;
  }
}

TEST(ColorReader, AFailureLeavesWhatWasReadUntilThen) {
  const Read test(Palette({"2,2,2\t# 0 elm", "x,2,2\t# 1 ash"}));
  EXPECT_EQ(test.failure, kNoNumber);
  EXPECT_EQ(test.Colors(), (Texts{"0: 2,2,2 elm", "1: 0,0,0 "}));
  EXPECT_EQ(test.palette.count, 1);
}

TEST(ColorReader, WithoutColorsOrVehiclesOneEmptyRecordOfEachIsThere) {
  const Read test("");
  EXPECT_EQ(test.Colors(), Texts{"0: 0,0,0 "});
  EXPECT_EQ(test.palette.count, 0);
  EXPECT_EQ(test.Pairs(), Texts{""});
  EXPECT_EQ(test.pairs.names, Texts{});
}

TEST(ColorReader, OnlyTheFirstPaletteIsRead) {
  const Read test(CrLf({"col", "1,1,1\t# 0 oak", "end", "col", "2,2,2\t# 0 elm", "end", "car", "bus,0,0"}));
  EXPECT_EQ(test.Colors(), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, AnEndBeforeThePaletteIsNoEnd) {
  const Read test(CrLf({"end", "col", "1,1,1\t# 0 oak", "ending", "2,2,2\t# 1 elm", "car", "bus,0,0"}));
  EXPECT_EQ(test.Colors(), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, PaletteMarksAreTheFirstThreeCharactersWithCaseAndWithoutTrimming) {
  const Read test(CrLf({"Col", " col", "9,9,9\t# 0 no", "colours of the bay", "1,1,1\t# 0 oak", " end#",
                        "End of it", "end# here", "9,9,9\t# 3 no", "car", "bus,0,0"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,1,1 oak", "1: 0,0,0 ", "2: 0,0,0 Color 2"}));
}

TEST(ColorReader, APaletteMarkWithACommentBehindItIsAMark) {
  const Read test(CrLf({"col # 90", "1,1,1\t# 0 oak", "end # of it", "car", "bus,0,0"}));
  EXPECT_EQ(test.Colors(), Texts{"0: 1,1,1 oak"});
}

TEST(ColorReader, WithoutAnEndThePaletteReachesIntoTheVehicles) {
  const Read test(CrLf({"col", "1,1,1\t# 0 oak", "car", "bus,0,0"}));
  EXPECT_EQ(test.Colors(), (Texts{"0: 1,1,1 oak", "1: 0,0,0 Color 1"}));
  EXPECT_EQ(test.Pairs(), Texts{"bus 0,0"});
}

TEST(ColorReader, ADamagedLineLeavesWhatStoodBeforeIt) {
  const Read test(CrLf({"car", "cab,0,0", "van,1,1", "cab,0", "bus,0,0", "end"}));
  EXPECT_EQ(test.pairs.damagedLine, 4);
  EXPECT_EQ(test.pairs.names, (Texts{"cab", "van"}));
  EXPECT_EQ(test.Pairs(), (Texts{"cab 0,0", "van 1,1"}));
}

TEST(ColorReader, VehicleLinesAreTakenApartAtTheirCommas) {
  const Read test(Vehicles({" t axi ,\t0, 1 , 1\t,1", "bus,32767,-32768", "cab,1.5,2.5"}));
  EXPECT_EQ(test.Pairs(), (Texts{"taxi 0,1 1,1", "bus 32767,-32768", "cab 2,2"}));
}

TEST(ColorReader, AVehicleLineIsCutBeforeItsCommentAndShortLinesAreSkipped) {
  const Read test(Vehicles({"# bus,0,0", "", "taxi,0,1 # two, 3", "#"}));
  EXPECT_EQ(test.Pairs(), Texts{"taxi 0,1"});
}

TEST(ColorReader, ACommaAtTheEndOfAVehicleLineIsNothing) {
  const Read test(Vehicles({"taxi,0,1,", "bus,1,0,1,1,\t"}));
  EXPECT_EQ(test.Pairs(), (Texts{"taxi 0,1", "bus 1,0 1,1"}));
}

TEST(ColorReader, TwoCommasAtTheEndOfAVehicleLineAreHalfAPairAndFail) {
  const Read test(Vehicles({"taxi,0,1,,"}));
  EXPECT_EQ(test.failure, kNoNumber);
}

TEST(ColorReader, ANameAndOneNumberAreTooFewFields) {
  const Read test(Vehicles({"bus,1,0", "taxi,0"}));
  EXPECT_EQ(test.pairs.damagedLine, 7);
}

TEST(ColorReader, ANameAndOneNumberWithACommaPassTheCountAndFailInTheConversion) {
  const Read test(Vehicles({"taxi,0,"}));
  EXPECT_EQ(test.failure, kNoNumber);
}

TEST(ColorReader, HalfAPairFailsTheLoad) {
  const Read test(Vehicles({"taxi,0,1,1"}));
  EXPECT_EQ(test.failure, kNoNumber);
  EXPECT_EQ(test.Pairs(), Texts{"taxi 0,1 1,0"});
}

TEST(ColorReader, AColorNumberThatIsNoneOrDoesNotFitFailsTheLoad) {
  EXPECT_EQ(Read(Vehicles({"taxi,red,1"})).failure, kNoNumber);
  EXPECT_EQ(Read(Vehicles({"taxi,,1"})).failure, kNoNumber);
  EXPECT_EQ(Read(Vehicles({"taxi,0,32768"})).failure, kOverflow);
}

TEST(ColorReader, ALineOfBlanksOrACommentBehindABlankFailsTheLoad) {
  for (const char* line : {" ", "\t", " # vans"}) {
    const Read test(Vehicles({"bus,1,0", line}));
    EXPECT_EQ(test.pairs.damagedLine, 7);
  }
}

TEST(ColorReader, VehiclesStandBetweenCarOrAnyLongerWordAndEnd) {
  const Read test(CrLf({"car", "van,0,0", "end", "free, text", "col", "1,1,1\t# 0 oak", "end", "Car", " car",
                        "cars of the bay", "bus,0,0", "ending", "x"}));
  EXPECT_EQ(test.Pairs(), (Texts{"van 0,0", "bus 0,0"}));
  EXPECT_EQ(test.pairs.damagedLine, std::nullopt);
}

TEST(ColorReader, ALineThatBeginsWithCarInsideTheSectionIsAVehicle) {
  const Read test(Vehicles({"cargovan,0,1", "carriage,1,1"}));
  EXPECT_EQ(test.Pairs(), (Texts{"cargovan 0,1", "carriage 1,1"}));
}

TEST(ColorReader, VehicleMarksWithACommentBehindThemAreMarks) {
  const Read test(CrLf({"col", "1,1,1\t# 0 oak", "end", "car # vehicles", "bus,0,0", "end#", "free text"}));
  EXPECT_EQ(test.Pairs(), Texts{"bus 0,0"});
  EXPECT_EQ(test.pairs.damagedLine, std::nullopt);
}

std::string PaletteOf(int colors) {
  std::string text = "col\r\n";
  for (int color = 0; color < colors; ++color) text += "1,1,1\t# 0 oak\r\n";
  return text;
}

TEST(ColorReader, ThePaletteCountsToSixteenBitsAndTheVehiclePassCountsTheLines) {
  const Read test(PaletteOf(32767));
  EXPECT_EQ(test.failure, kOverflow);
  EXPECT_EQ(test.palette.colors.Count(), 32767);
  EXPECT_EQ(test.palette.colors.At(32766).Index, 32766);
}

TEST(ColorReader, OneColorMoreIsAnOverflowInThePalettePass) {
  const Read test(PaletteOf(32768));
  EXPECT_EQ(test.failure, kOverflow);
  EXPECT_EQ(test.palette.colors.Count(), 32768);
}

TEST(ColorReader, ReadsAsManyLinesAsSixteenBitsCount) {
  std::string text = PaletteOf(1) + CrLf({"end", "car"});
  for (int line = 5; line < 32768; ++line) text += "bus,0,0\r\n";
  const Read test(text);
  EXPECT_EQ(test.pairs.damagedLine, std::nullopt);
  EXPECT_EQ(test.pairs.records.Count(), 32763);
  EXPECT_EQ(Read(text + "\r\n").failure, kOverflow);
}

TEST(ColorReader, AVehicleTakesAsManyPairsAsSixteenBitsCountFields) {
  std::string line = "bus";
  for (int pair = 0; pair < 16383; ++pair) line += ",0,1";
  const Read test(Vehicles({line}));
  EXPECT_EQ(test.pairs.damagedLine, std::nullopt);
  EXPECT_EQ(test.pairs.records.At(0).Pairs.size(), 16383U);
  EXPECT_EQ(Read(Vehicles({line + ","})).failure, kOverflow);
}

}  // namespace
}  // namespace wheelwright::testing
