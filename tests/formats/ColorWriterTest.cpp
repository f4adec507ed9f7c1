#include "formats/ColorFile.h"
#include "support/TableTexts.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

// A text that is read and then saved, each time over what the last save made of it.
class Opened {
 public:
  explicit Opened(const std::string& text) : onDisk(text) {
    ReadPalette(text, palette);
    ReadPairs(text, pairs);
  }

  std::string Saved() {
    onDisk = WritePairs(WritePalette(onDisk, palette.colors) + "\r\n", pairs.records) + "\r\n";
    return onDisk;
  }

  // As edits leave them.
  void GiveTheFirstColorMoreRed() { palette.colors.At(0).Red = 200; }
  void GiveTheFirstVehicleAPair() { pairs.records.At(0).Pairs.push_back({0, 0}); }

  std::string onDisk;
  PaletteSection palette;
  PairsSection pairs;
};

// A saved file: the banner, the lines and the line ends of the two writes.
std::string File(std::initializer_list<std::string_view> lines) { return kBanner + CrLf(lines) + "\r\n\r\n"; }

// A file with a palette section of these lines and one vehicle.
std::string WithPalette(std::initializer_list<std::string_view> lines) {
  return "col\r\n" + CrLf(lines) + CrLf({"end", "car", "bus, 0, 0", "end"});
}
std::string SavedWithPalette(std::initializer_list<std::string_view> lines) {
  return kBanner + WithPalette(lines) + "\r\n\r\n";
}

// A file with a palette of one colour and a vehicle section of these lines.
std::string WithVehicles(std::initializer_list<std::string_view> lines) {
  return CrLf({"col", "1,2,3\t\t\t\t# 0 oak", "end", "car"}) + CrLf(lines) + CrLf({"end"});
}
std::string SavedWithVehicles(std::initializer_list<std::string_view> lines) {
  return kBanner + WithVehicles(lines) + "\r\n\r\n";
}

TEST(ColorWriter, GivesShortNumbersFourTabsAndEightCharactersThree) {
  Opened test(WithPalette({"1,22,33\t# 0 oak", "10,20,30\t# 1 elm", "-100,-200,-300\t# 2 ash"}));
  EXPECT_EQ(test.Saved(), SavedWithPalette({"1,22,33\t\t\t\t# 0 oak", "10,20,30\t\t\t# 1 elm",
                                            "-100,-200,-300\t\t\t# 2 ash"}));
}

TEST(ColorWriter, NumbersTheColorsByTheirIndexAndCutsNamesToOneWord) {
  Opened test(WithPalette({"1,1,1\t# 17 oak light", "0,0,0", "2,2,2\t#9 elm"}));
  EXPECT_EQ(test.Saved(),
            SavedWithPalette({"1,1,1\t\t\t\t# 0 oak", "0,0,0\t\t\t\t# 1 Color 1", "2,2,2\t\t\t\t# 2 "}));
}

TEST(ColorWriter, LeavesOutColorsWithANegativeIndex) {
  Opened test(WithPalette({"1,1,1\t# 0 oak", "2,2,2\t# 1 elm", "3,3,3\t# 2 ash"}));
  test.palette.colors.At(1).Index = -1;
  EXPECT_EQ(test.Saved(), SavedWithPalette({"1,1,1\t\t\t\t# 0 oak", "3,3,3\t\t\t\t# 2 ash"}));
}

TEST(ColorWriter, WritesVehiclesInTableOrderWithACommaAndABlank) {
  Opened test(WithVehicles({"van,0,0", "\tbus ,0,0,\t0,0", "cab,0,0,"}));
  EXPECT_EQ(test.Saved(), SavedWithVehicles({"van, 0, 0", "bus, 0, 0, 0, 0", "cab, 0, 0"}));
}

TEST(ColorWriter, CopiesWhatLiesOutsideTheSectionsAsItStands) {
  const std::initializer_list<std::string_view> lines = {
      "",    " col\t",    "Col",        "end",      "col",  "1,1,1\t\t\t\t# 0 oak",
      "end", "  ",        "# \xFC car", "text # x", " car", "\x01\xFF",
      "car", "bus, 0, 0", "end",        "END",      "tail"};
  Opened test(CrLf(lines));
  EXPECT_EQ(test.Saved(), File(lines));
}

TEST(ColorWriter, ClosesEveryLineWithCarriageReturnAndLineFeed) {
  Opened test("col\r1,1,1\t# 0 oak\rend\r\ncar\rbus,0,0\rend\rtail");
  EXPECT_EQ(test.Saved(), File({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus, 0, 0", "end", "tail"}));
}

TEST(ColorWriter, EachSaveAddsTwoEmptyLinesAtTheEnd) {
  Opened test(WithPalette({"1,1,1\t# 0 oak"}));
  const std::string once = SavedWithPalette({"1,1,1\t\t\t\t# 0 oak"});
  EXPECT_EQ(test.Saved(), once);
  EXPECT_EQ(test.Saved(), once + "\r\n\r\n");
  EXPECT_EQ(test.Saved(), once + "\r\n\r\n\r\n\r\n");
}

TEST(ColorWriter, DropsOldBannerLinesWhoseMarkStandsInTheFirstFiveCharacters) {
  const std::string late = "     # File created with Wheelwright V1.0.0\r\n";
  Opened test("# File created with Wheelwright V0.9\r\n    # FILE created with wheelwright v\r\n" + late +
              WithPalette({"1,1,1\t# 0 oak"}) + "# HOMEPAGE: HTTPS://Wheelwright.Example/\r\n");
  EXPECT_EQ(test.Saved(), kBanner + late + WithPalette({"1,1,1\t\t\t\t# 0 oak"}) + "\r\n\r\n");
}

TEST(ColorWriter, AnOldBannerLineInThePaletteGoesButStaysAColor) {
  Opened test(WithPalette({"# File created with Wheelwright V0.9", "1,1,1\t# 0 oak"}));
  EXPECT_EQ(test.Saved(), SavedWithPalette({"0,0,0\t\t\t\t# 0 created", "1,1,1\t\t\t\t# 1 oak"}));
}

TEST(ColorWriter, ShortRemarksOfThePaletteKeepTheirPlaceByItsFirstColor) {
  Opened test(WithPalette({"# A", "1,1,1\t# 0 oak", "# B", "2,2,2\t# 1 elm"}));
  EXPECT_EQ(test.Saved(), SavedWithPalette({"# A", "1,1,1\t\t\t\t# 0 oak", "2,2,2\t\t\t\t# 1 elm", "# B"}));
}

TEST(ColorWriter, ALongRemarkOfThePaletteIsKeptAndBecomesOneMoreColorEachTime) {
  Opened test(WithPalette({"# old greys", "1,1,1\t# 0 oak"}));
  const std::string saved = test.Saved();
  EXPECT_EQ(saved, SavedWithPalette({"# old greys", "0,0,0\t\t\t\t# 0 greys", "1,1,1\t\t\t\t# 1 oak"}));
  EXPECT_EQ(TextsOf(Opened(saved).palette.colors),
            (Texts{"0: 0,0,0 greys", "1: 0,0,0 greys", "2: 1,1,1 oak"}));
}

TEST(ColorWriter, AMarkAtTheFifthCharacterMakesAPaletteLineACommentAndAtTheSixthNot) {
  Opened fifth(WithPalette({"abcd# x y", "1,1,1\t# 0 oak"}));
  EXPECT_EQ(fifth.Saved(), SavedWithPalette({"abcd# x y", "0,0,0\t\t\t\t# 0 y", "1,1,1\t\t\t\t# 1 oak"}));
  Opened sixth(WithPalette({"abcde# x y", "1,1,1\t# 0 oak"}));
  EXPECT_EQ(sixth.Saved(), SavedWithPalette({"0,0,0\t\t\t\t# 0 y", "1,1,1\t\t\t\t# 1 oak"}));
}

TEST(ColorWriter, APaletteOpenedWithAnEarlyMarkIsNeverSeenAndItsEditsAreLost) {
  Opened test(CrLf({"col #", "1,1,1\t# 0 oak", "end", "car", "bus,0,0", "end"}));
  test.GiveTheFirstColorMoreRed();
  EXPECT_EQ(test.Saved(), File({"col #", "1,1,1\t# 0 oak", "end", "car", "bus, 0, 0", "end"}));
}

TEST(ColorWriter, APaletteOpenedWithALateMarkIsSeen) {
  Opened test(CrLf({"col  # x", "1,1,1\t# 0 oak", "end", "car", "bus,0,0", "end"}));
  test.GiveTheFirstColorMoreRed();
  EXPECT_EQ(test.Saved(), File({"col  # x", "200,1,1\t\t\t\t# 0 oak", "end", "car", "bus, 0, 0", "end"}));
}

TEST(ColorWriter, APaletteEndWithAnEarlyMarkLetsTheNextEndDropTheVehiclesToo) {
  Opened test(CrLf({"col", "1,1,1\t# 0 oak", "end #", "car", "bus,0,0", "end", "tail"}));
  EXPECT_EQ(test.Saved(), File({"col", "1,1,1\t\t\t\t# 0 oak", "end #", "end", "tail"}));
}

TEST(ColorWriter, APaletteEndWithALateMarkEndsIt) {
  Opened test(CrLf({"col", "1,1,1\t# 0 oak", "end  # x", "car", "bus,0,0", "end", "tail"}));
  EXPECT_EQ(test.Saved(),
            File({"col", "1,1,1\t\t\t\t# 0 oak", "end  # x", "car", "bus, 0, 0", "end", "tail"}));
}

TEST(ColorWriter, OnlyTheFirstPaletteIsRewritten) {
  Opened test(
      CrLf({"col", "1,1,1\t# 0 oak", "end", "col", "2,2,2\t# 0 elm", "end", "car", "bus,0,0", "end"}));
  EXPECT_EQ(test.Saved(), File({"col", "1,1,1\t\t\t\t# 0 oak", "end", "col", "2,2,2\t# 0 elm", "end", "car",
                                "bus, 0, 0", "end"}));
}

TEST(ColorWriter, AVehicleOpenedWithACommentIsNeverSeenAndItsEditsAreLost) {
  Opened test(CrLf({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car # all", "bus,0,0", "end"}));
  test.GiveTheFirstVehicleAPair();
  EXPECT_EQ(test.Saved(), File({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car # all", "bus,0,0", "end"}));
}

TEST(ColorWriter, AVehicleEndWithACommentEndsTheSectionForTheReaderOnly) {
  Opened test(CrLf({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus,0,0", "end # all", "text", "# kept",
                    "end", "tail"}));
  EXPECT_EQ(test.Saved(), File({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus, 0, 0", "end # all",
                                "# kept", "end", "tail"}));
}

TEST(ColorWriter, AVehicleWithACommentIsKeptAndWrittenOnceMore) {
  Opened test(WithVehicles({"bus,0,0 # mine", "cab,0,0"}));
  EXPECT_EQ(test.Saved(), SavedWithVehicles({"bus,0,0 # mine", "bus, 0, 0", "cab, 0, 0"}));
}

TEST(ColorWriter, ASectionOfVehiclesWithCommentsGetsNoTable) {
  Opened test(WithVehicles({"bus,0,0 # mine", "# vans"}));
  test.GiveTheFirstVehicleAPair();
  EXPECT_EQ(test.Saved(), SavedWithVehicles({"bus,0,0 # mine", "# vans"}));
}

TEST(ColorWriter, CommentsOfTheVehiclesKeepTheirPlaceByTheFirstOne) {
  Opened test(WithVehicles({"# cars", "bus,0,0", "# vans", "", "van,0,0"}));
  EXPECT_EQ(test.Saved(), SavedWithVehicles({"# cars", "bus, 0, 0", "van, 0, 0", "# vans"}));
}

TEST(ColorWriter, TheVehiclesStandInTheFirstOfSeveralSections) {
  Opened test(WithVehicles({"bus,0,0"}) + CrLf({"text", "car", "van,0,0", "end"}));
  EXPECT_EQ(test.Saved(),
            kBanner + WithVehicles({"bus, 0, 0", "van, 0, 0"}) + CrLf({"text", "car", "end"}) + "\r\n\r\n");
}

TEST(ColorWriter, TheEmptyLineOfTheFirstWriteIsTheDataLineOfASectionWithoutEnd) {
  Opened test(CrLf({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus,0,0 # mine"}));
  EXPECT_EQ(
      test.Saved(),
      kBanner + CrLf({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus,0,0 # mine", "bus, 0, 0"}) + "\r\n");
}

TEST(ColorWriter, TheSecondPassMakesNoBannerTest) {
  Opened test(WithVehicles({"bus,0,0"}) + "abcdefg # File created with Wheelwright V1\r\n");
  EXPECT_EQ(test.Saved(),
            kBanner + WithVehicles({"bus, 0, 0"}) + "abcdefg # File created with Wheelwright V1\r\n\r\n\r\n");
}

}  // namespace
}  // namespace wheelwright::testing
