#include "formats/DefinitionFile.h"
#include "support/TableTexts.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

// A boat of this name as a file may have it, and as it is written.
std::string Boat(const std::string& name) { return "1,m,t,boat," + name + ",g,a,k,2,3,4"; }
std::string WrittenBoat(const std::string& name) {
  return "1,\tm,\t\tt,\t\tboat,\t" + name + ",\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t";
}

// A text that is read and then saved, each time over what the last save made of it.
class Opened {
 public:
  explicit Opened(const std::string& text) : onDisk(text) { ReadDefinitions(text, file); }

  std::string Saved() {
    onDisk = WriteDefinitions(onDisk, file.records) + "\r\n";
    return onDisk;
  }

  std::string onDisk;
  DefinitionFile file;
};

// A saved file: the banner, the lines and the line end of the final write.
std::string File(std::initializer_list<std::string_view> lines) { return kBanner + CrLf(lines) + "\r\n"; }

TEST(DefinitionWriter, WritesACarWithBothExtras) {
  Opened test(CrLf({"cars", "131,harrow,hartex,car,HARROW,HARNAME,null,normal,10,7,3f,250,0.8", "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars",
                  "131,\tharrow,\t\thartex,\t\tcar,\tHARROW,\t\tHARNAME,\tnull,\t\tnormal,\t\t10, "
                  "\t7, \t3f, \t250, \t0.8",
                  "end"}));
}

TEST(DefinitionWriter, WritesAPlaneWithItsFirstExtraOnly) {
  Opened test(CrLf({"cars", "1,m,t,plane,H,g,a,k,2,3,4,-1,9", "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars", "1,\tm,\t\tt,\t\tplane,\tH,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t-1", "end"}));
}

TEST(DefinitionWriter, WritesNoExtraForAnyOtherTypeAlsoNotForOneInCapitals) {
  for (const std::string type : {"boat", "bike", "heli", "Car", "CAR", "Plane", "cars", ""}) {
    Opened test(CrLf({"cars", "1,m,t," + type + ",H,g,a,k,2,3,4,250,0.7", "end"}));
    EXPECT_EQ(
        test.Saved(),
        File({"cars", "1,\tm,\t\tt,\t\t" + type + ",\tH,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t", "end"}));
  }
}

TEST(DefinitionWriter, ACarWithoutExtrasStillGetsTheirSeparator) {
  Opened test(CrLf({"cars", "1,m,t,car,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars", "1,\tm,\t\tt,\t\tcar,\tH,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t, \t", "end"}));
}

TEST(DefinitionWriter, SixCharactersGetAnExtraTabAndSevenDoNot) {
  Opened test(CrLf({"cars", "234567,six456,six456,boat,six456,six456,six456,six456,7,8,9",
                    "2345678,seven67,seven67,heli,seven67,seven67,seven67,seven67,7,8,9", "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars",
                  "234567,\tsix456,\t\tsix456,\t\tboat,\tsix456,\t\tsix456,\t\tsix456,\t\tsix456,"
                  "\t\t7, \t8, \t9, \t",
                  "2345678,\tseven67,\tseven67,\theli,\tseven67,\tseven67,\tseven67,\tseven67,\t7, "
                  "\t8, \t9, \t",
                  "end"}));
}

TEST(DefinitionWriter, EmptyFieldsKeepTheirSeparators) {
  Opened test(CrLf({"cars", ",,,,,,,,,,", "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", ",\t,\t\t,\t\t,\t,\t\t,\t\t,\t\t,\t\t, \t, \t, \t", "end"}));
}

TEST(DefinitionWriter, PutsTheTableInFileOrderWhereTheFirstDataLineStood) {
  Opened test(CrLf({"cars", Boat("Z"), Boat("A"), "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("Z"), WrittenBoat("A"), "end"}));
}

TEST(DefinitionWriter, AnEmptyLineOfTheSectionIsItsFirstDataLineToo) {
  Opened test(CrLf({"cars", "", "# behind", Boat("H"), "", "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "# behind", "end"}));
}

TEST(DefinitionWriter, CopiesWhatLiesOutsideTheSectionAsItStands) {
  Opened test(CrLf({"", " objs\t", "20, kiosk ,\t1", "end", "cars", Boat("H"), "end", "  ", "\t", "# \xFC",
                    "\x01\xFF", " cars", "Cars", "END"}));
  EXPECT_EQ(test.Saved(), File({"", " objs\t", "20, kiosk ,\t1", "end", "cars", WrittenBoat("H"), "end", "  ",
                                "\t", "# \xFC", "\x01\xFF", " cars", "Cars", "END"}));
}

TEST(DefinitionWriter, ClosesEveryLineWithCarriageReturnAndLineFeed) {
  Opened test("cars\r" + Boat("H") + "\rend\r\nlast");
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end", "last"}));
}

TEST(DefinitionWriter, EachSaveAddsOneEmptyLineAtTheEnd) {
  Opened test(CrLf({"cars", Boat("H"), "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end", ""}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end", "", ""}));
}

TEST(DefinitionWriter, DropsOldBannerLinesWhereverTheyStand) {
  Opened test(CrLf({"# File created with Wheelwright V0.9.1", "# HOMEPAGE: HTTPS://Wheelwright.Example/",
                    "cars", "# file CREATED with wheelwright v", Boat("H"), "end",
                    "# old: # File created with Wheelwright V1.0.0, kept",
                    "# Homepage: https://wheelwright.example/ and more"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end"}));
}

TEST(DefinitionWriter, KeepsCommentsThatOnlyResembleTheBanner) {
  Opened test(CrLf({"# File created with Wheelwright", "#File created with Wheelwright V1.0.0",
                    "# Homepage: https://other.example/", "cars", Boat("H"), "end"}));
  EXPECT_EQ(test.Saved(), File({"# File created with Wheelwright", "#File created with Wheelwright V1.0.0",
                                "# Homepage: https://other.example/", "cars", WrittenBoat("H"), "end"}));
}

TEST(DefinitionWriter, CommentsOfTheSectionKeepTheirPlaceByItsFirstDataLine) {
  Opened test(CrLf({"cars", "# before", Boat("A"), "# between", Boat("B"), "# behind", "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars", "# before", WrittenBoat("A"), WrittenBoat("B"), "# between", "# behind", "end"}));
}

TEST(DefinitionWriter, AVehicleWithACommentStandsOnceMoreAfterEachLoadAndSave) {
  const std::string commented = Boat("H") + " # mine";
  Opened test(CrLf({"cars", commented, Boat("I"), "end"}));
  const std::string once = test.Saved();
  EXPECT_EQ(once, File({"cars", commented, WrittenBoat("H"), WrittenBoat("I"), "end"}));
  Opened again(once);
  EXPECT_EQ(again.Saved(),
            File({"cars", commented, WrittenBoat("H"), WrittenBoat("H"), WrittenBoat("I"), "end", ""}));
}

TEST(DefinitionWriter, ASectionOpenedWithACommentIsNeverSeenAndItsEditsAreLost) {
  Opened test(CrLf({"cars # vehicles", Boat("H"), "end"}));
  test.file.records.At(0).ID = "99";
  EXPECT_EQ(test.Saved(), File({"cars # vehicles", Boat("H"), "end"}));
}

TEST(DefinitionWriter, ASectionEndWithACommentDoesNotEndItForTheWriter) {
  Opened test(CrLf({"cars", Boat("H"), "end # vehicles", "peds", "# kept", "2, baker", "end", "path"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end # vehicles", "# kept", "end", "path"}));
}

TEST(DefinitionWriter, WithoutAnotherEndEverythingUpToTheEndOfTheFileIsDropped) {
  Opened test(CrLf({"cars", Boat("H"), "end # vehicles", "peds", "2, baker", " end"}));
  EXPECT_EQ(test.Saved(), File({"cars", WrittenBoat("H"), "end # vehicles"}));
}

TEST(DefinitionWriter, ASectionOfLinesWithCommentsGetsNoTable) {
  Opened test(CrLf({"cars", Boat("H") + " # a", "# b", "end"}));
  test.file.records.At(0).ID = "99";
  EXPECT_EQ(test.Saved(), File({"cars", Boat("H") + " # a", "# b", "end"}));
}

TEST(DefinitionWriter, AnEmptySectionGetsNoTable) {
  Opened test(CrLf({"cars", Boat("H"), "end"}));
  test.onDisk = CrLf({"cars", "end", "text"});
  EXPECT_EQ(test.Saved(), File({"cars", "end", "text"}));
}

TEST(DefinitionWriter, TheTableStandsInTheFirstOfSeveralSections) {
  Opened test(CrLf({"cars", Boat("A"), "end", "text", "cars", "# kept", Boat("B"), "end"}));
  EXPECT_EQ(test.Saved(),
            File({"cars", WrittenBoat("A"), WrittenBoat("B"), "end", "text", "cars", "# kept", "end"}));
}

TEST(DefinitionWriter, AnEmptyFirstSectionLeavesTheTableToTheSecond) {
  Opened test(CrLf({"cars", "end", "cars", Boat("A"), "end"}));
  EXPECT_EQ(test.Saved(), File({"cars", "end", "cars", WrittenBoat("A"), "end"}));
}

TEST(DefinitionWriter, LongerWordsThatBeginWithTheMarksAreMarks) {
  Opened test(CrLf({"carsten", Boat("H"), "cars,m,t,boat,I,g,a,k,2,3,4", "endless", "text"}));
  EXPECT_EQ(test.Saved(),
            File({"carsten", WrittenBoat("H"),
                  "cars,\tm,\t\tt,\t\tboat,\tI,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t", "endless", "text"}));
}

}  // namespace
}  // namespace wheelwright::testing
