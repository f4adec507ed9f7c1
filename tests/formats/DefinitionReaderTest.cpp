#include "formats/DefinitionFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

// What reading a text leaves, and the number of the failure that ended it, 0 for none.
struct Read : DefinitionFile {
  explicit Read(const std::string& text) : failure(NumberThrownBy([&] { ReadDefinitions(text, *this); })) {}
  int failure;
};

TEST(DefinitionReader, TakesTheFieldsByPosition) {
  const Read file(CrLf({"cars", "1, m, t, car, H, g, a, k, 2, 3, 4, 250, 0.7", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|car|H|g|a|k|2|3|4|250|0.7"});
  EXPECT_EQ(file.names, Texts{"H"});
  EXPECT_EQ(file.damagedLine, std::nullopt);
}

TEST(DefinitionReader, NamesTheHandlingIdsInFileOrder) {
  const Read file(CrLf({"cars", "1,m,t,boat,RAFT,g,a,k,2,3,4", "2,m,t,boat,canoe,g,a,k,2,3,4",
                        "3,m,t,boat,DHOW,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(file.names, (Texts{"RAFT", "canoe", "DHOW"}));
  EXPECT_EQ(TextsOf(file.records), (Texts{"1|m|t|boat|RAFT|g|a|k|2|3|4||", "2|m|t|boat|canoe|g|a|k|2|3|4||",
                                          "3|m|t|boat|DHOW|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, BlanksAndTabsInsideAFieldGoAndItsHalvesJoin) {
  const Read file(CrLf({"cars", " 1 0,\tmo del,t\tx d,boat,H I,g,a,k,2,3,4 \t", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"10|model|txd|boat|HI|g|a|k|2|3|4||"});
  EXPECT_EQ(file.names, Texts{"HI"});
}

TEST(DefinitionReader, AllOtherBytesOfAFieldStay) {
  const Read file(CrLf({"cars", "1,m\xFC\xA0\x01,t;%$!,boat,H,\"g\",'a',k,x,-3.0,0xF", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m\xFC\xA0\x01|t;%$!|boat|H|\"g\"|'a'|k|x|-3.0|0xF||"});
}

TEST(DefinitionReader, TwoCommasInARowGiveAnEmptyField) {
  const Read file(CrLf({"cars", ",,t,boat,,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"||t|boat||g|a|k|2|3|4||"});
  EXPECT_EQ(file.names, Texts{""});
}

TEST(DefinitionReader, TheTwelfthAndThirteenthFieldAreOptionalAndLaterOnesAreDropped) {
  const Read file(CrLf({"cars", "1,m,t,car,A,g,a,k,2,3,4,5", "1,m,t,car,B,g,a,k,2,3,4,5,6",
                        "1,m,t,car,C,g,a,k,2,3,4,5,6,7,8", "end"}));
  EXPECT_EQ(TextsOf(file.records), (Texts{"1|m|t|car|A|g|a|k|2|3|4|5|", "1|m|t|car|B|g|a|k|2|3|4|5|6",
                                          "1|m|t|car|C|g|a|k|2|3|4|5|6"}));
}

TEST(DefinitionReader, TenFieldsAndACommaPassAsElevenWithAnEmptyLastOne) {
  const Read file(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|||"});
}

TEST(DefinitionReader, NineFieldsAndACommaAreTooFew) {
  const Read file(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,", "end"}));
  EXPECT_EQ(file.damagedLine, 2);
}

TEST(DefinitionReader, ARunOfCommasPassesAsEmptyFields) {
  const Read file(CrLf({"cars", "1,m,t,boat,H,,,,,,", ",,,,,,,,,,", "1,m,t,car,I,g,a,k,2,3,4,,,,", "end"}));
  EXPECT_EQ(TextsOf(file.records),
            (Texts{"1|m|t|boat|H||||||||", "||||||||||||", "1|m|t|car|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, AWrittenLineThatEndsInACommaHasElevenFields) {
  const Read file(CrLf({"cars", "1,\tm,\t\tt,\t\tboat,\tH,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, IgnoresEverythingOutsideTheSection) {
  const Read file(CrLf(
      {"objs", "1, kiosk", "end", "", "cars", "1,m,t,boat,H,g,a,k,2,3,4", "end", "peds", "2, baker", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, LongerWordsThatBeginWithTheMarksAreMarks) {
  const Read file(CrLf({"carsten", "1,m,t,boat,H,g,a,k,2,3,4", "endless, 1", "not, a, record"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(file.damagedLine, std::nullopt);
}

TEST(DefinitionReader, CapitalsOrABlankInFrontMakeNoMark) {
  for (const char* mark : {"Cars", "CARS", " cars", "\tcars", "car"}) {
    const Read file(CrLf({mark, "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
    EXPECT_EQ(file.names, Texts{}) << mark;
  }
}

TEST(DefinitionReader, AnEndThatIsNoMarkIsADataLineOfOneFieldAndFailsTheLoad) {
  for (const char* mark : {" end", "END", "\tend"}) {
    const Read file(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4", mark, "end"}));
    EXPECT_EQ(file.damagedLine, 3) << mark;
  }
}

TEST(DefinitionReader, TheLineThatOpensTheSectionIsNoRecord) {
  const Read file(CrLf({"cars,m,t,boat,A,g,a,k,2,3,4", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, ALineThatBeginsWithTheMarkInsideTheSectionIsARecord) {
  const Read file(CrLf({"cars", "cars,m,t,boat,A,g,a,k,2,3,4", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(file.records), (Texts{"cars|m|t|boat|A|g|a|k|2|3|4||", "1|m|t|boat|H|g|a|k|2|3|4||"}));
  const Read bare(CrLf({"cars", "cars", "end"}));
  EXPECT_EQ(bare.damagedLine, 2);
}

TEST(DefinitionReader, TheRecordsOfAllSectionsJoinInOneTable) {
  const Read file(CrLf(
      {"cars", "1,m,t,boat,H,g,a,k,2,3,4", "end", "free text", "cars", "2,m,t,boat,I,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(file.records), (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "2|m|t|boat|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, WithoutAnEndTheSectionReachesToTheEndOfTheFile) {
  const Read file("cars\r\n1,m,t,boat,H,g,a,k,2,3,4\r\n2,m,t,boat,I,g,a,k,2,3,4");
  EXPECT_EQ(TextsOf(file.records), (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "2|m|t|boat|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, ALineIsCutBeforeItsFirstCommentMark) {
  const Read file(
      CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4 # a, b # c", "1,m,t,car,I,g,a,k,2,3,4#,5,6", "end"}));
  EXPECT_EQ(TextsOf(file.records), (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "1|m|t|car|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, EmptyLinesAndCommentsInTheFirstColumnAreSkipped) {
  const Read file(CrLf({"cars", "", "# 1,m,t,boat,X,g,a,k,2,3,4", "#", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(file.damagedLine, std::nullopt);
}

TEST(DefinitionReader, ACommentBehindABlankIsALineWithoutFieldsAndFailsTheLoad) {
  const Read file(CrLf({"# head", "cars", " # boats", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(file.damagedLine, 3);
}

TEST(DefinitionReader, ALineOfBlanksOrTabsFailsTheLoad) {
  for (const char* line : {" ", "\t", " \t "}) {
    const Read file(CrLf({"cars", line, "end"}));
    EXPECT_EQ(file.damagedLine, 2);
  }
}

TEST(DefinitionReader, MarksWithACommentBehindThemAreMarks) {
  const Read file(CrLf({"cars # vehicles", "1,m,t,boat,H,g,a,k,2,3,4", "end# of them", "not a record"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(file.damagedLine, std::nullopt);
}

TEST(DefinitionReader, MarksBehindACommentMarkAreNone) {
  const Read file(CrLf({"cars", "#end", "1,m,t,boat,H,g,a,k,2,3,4", "end", "#cars", "free text"}));
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(file.damagedLine, std::nullopt);
}

TEST(DefinitionReader, ACarriageReturnAloneEndsALine) {
  const Read file("cars\r1,m,t,boat,H,g,a,k,2,3,4\rend\rfree text\r");
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, ADamagedLineLeavesWhatStoodBeforeIt) {
  const Read file(CrLf({"objs", "", "cars", "1,m,t,boat,H,g,a,k,2,3,4", "2,m,t,boat,I,g,a,k,2,3",
                        "3,m,t,boat,J,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(file.damagedLine, 5);
  EXPECT_EQ(TextsOf(file.records), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, AFileWithoutARecordLeavesOneEmptyRecordWithoutAName) {
  for (const std::string& text : {CrLf({"cars", "# none", "end"}), CrLf({"objs", "end"}), std::string()}) {
    const Read file(text);
    EXPECT_EQ(TextsOf(file.records), Texts{"||||||||||||"});
    EXPECT_EQ(file.names, Texts{});
  }
}

TEST(DefinitionReader, ADamagedFirstLineLeavesOneEmptyRecord) {
  const Read file(CrLf({"cars", "1", "end"}));
  EXPECT_EQ(file.damagedLine, 2);
  EXPECT_EQ(TextsOf(file.records), Texts{"||||||||||||"});
}

std::string FileOfLines(int lines) {
  std::string text = "cars\r\n";
  for (int line = 1; line < lines; ++line) text += "1,m,t,boat,H,g,a,k,2,3,4\r\n";
  return text;
}

TEST(DefinitionReader, ReadsAsManyLinesAsSixteenBitsCount) {
  const Read file(FileOfLines(32767));
  EXPECT_EQ(file.damagedLine, std::nullopt);
  EXPECT_EQ(file.records.Count(), 32766);
  EXPECT_EQ(static_cast<int>(file.names.size()), 32766);
}

TEST(DefinitionReader, TheLineBehindThatIsAnOverflow) {
  const Read file(FileOfLines(32768));
  EXPECT_EQ(file.failure, 6);
  EXPECT_EQ(file.records.Count(), 32766);
}

TEST(DefinitionReader, LinesOutsideTheSectionCountToo) {
  std::string text = CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4", "end"});
  for (int line = 3; line < 32768; ++line) text += "\r\n";
  const Read file(text);
  EXPECT_EQ(file.failure, 6);
}

}  // namespace
}  // namespace wheelwright::testing
