#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

const Texts kLoaded = {"open", "hourglass", "normal"};
constexpr const char* kNothingToChoose = "error: Error: 380 - Invalid property value";

// A session that has just opened a definition file.
class Opened : public TestSession {
 public:
  explicit Opened(const std::string& text) { OpenDefinition(text); }
};

// What the desktop shows when line `number` stops the load.
Texts StoppedAt(int number) {
  return {"open", "hourglass", "normal", "error: E150" + std::to_string(number)};
}

TEST(DefinitionReader, TakesTheFieldsByPosition) {
  Opened test(CrLf({"cars", "1, m, t, car, H, g, a, k, 2, 3, 4, 250, 0.7", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|car|H|g|a|k|2|3|4|250|0.7"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_Ides), TextsOf(test.vars.Ides));
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"H"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(DefinitionReader, ListsTheHandlingIdsSortedAndKeepsTheTableInFileOrder) {
  Opened test(CrLf({"cars", "1,m,t,boat,RAFT,g,a,k,2,3,4", "2,m,t,boat,canoe,g,a,k,2,3,4",
                    "3,m,t,boat,DHOW,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Texts{"canoe", "DHOW", "RAFT"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|boat|RAFT|g|a|k|2|3|4||", "2|m|t|boat|canoe|g|a|k|2|3|4||",
                   "3|m|t|boat|DHOW|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, BlanksAndTabsInsideAFieldGoAndItsHalvesJoin) {
  Opened test(CrLf({"cars", " 1 0,\tmo del,t\tx d,boat,H I,g,a,k,2,3,4 \t", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"10|model|txd|boat|HI|g|a|k|2|3|4||"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"HI"});
}

TEST(DefinitionReader, AllOtherBytesOfAFieldStay) {
  Opened test(CrLf({"cars", "1,m\xFC\xA0\x01,t;%$!,boat,H,\"g\",'a',k,x,-3.0,0xF", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            Texts{"1|m\xFC\xA0\x01|t;%$!|boat|H|\"g\"|'a'|k|x|-3.0|0xF||"});
}

TEST(DefinitionReader, TwoCommasInARowGiveAnEmptyField) {
  Opened test(CrLf({"cars", ",,t,boat,,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"||t|boat||g|a|k|2|3|4||"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{""});
}

TEST(DefinitionReader, TheTwelfthAndThirteenthFieldAreOptionalAndLaterOnesAreDropped) {
  Opened test(CrLf({"cars", "1,m,t,car,A,g,a,k,2,3,4,5", "1,m,t,car,B,g,a,k,2,3,4,5,6",
                    "1,m,t,car,C,g,a,k,2,3,4,5,6,7,8", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|car|A|g|a|k|2|3|4|5|", "1|m|t|car|B|g|a|k|2|3|4|5|6",
                   "1|m|t|car|C|g|a|k|2|3|4|5|6"}));
}

TEST(DefinitionReader, TenFieldsAndACommaPassAsElevenWithAnEmptyLastOne) {
  Opened test(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|||"});
}

TEST(DefinitionReader, NineFieldsAndACommaAreTooFew) {
  Opened test(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,", "end"}));
  EXPECT_EQ(test.desktop.shown, StoppedAt(2));
}

TEST(DefinitionReader, ARunOfCommasPassesAsEmptyFields) {
  Opened test(
      CrLf({"cars", "1,m,t,boat,H,,,,,,", ",,,,,,,,,,", "1,m,t,car,I,g,a,k,2,3,4,,,,", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|boat|H||||||||", "||||||||||||", "1|m|t|car|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, AWrittenLineThatEndsInACommaHasElevenFields) {
  Opened test(
      CrLf({"cars", "1,\tm,\t\tt,\t\tboat,\tH,\t\tg,\t\ta,\t\tk,\t\t2, \t3, \t4, \t", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, IgnoresEverythingOutsideTheSection) {
  Opened test(CrLf({"objs", "1, kiosk", "end", "", "cars", "1,m,t,boat,H,g,a,k,2,3,4", "end",
                    "peds", "2, baker", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, LongerWordsThatBeginWithTheMarksAreMarks) {
  Opened test(CrLf({"carsten", "1,m,t,boat,H,g,a,k,2,3,4", "endless, 1", "not, a, record"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(DefinitionReader, CapitalsOrABlankInFrontMakeNoMark) {
  for (const char* mark : {"Cars", "CARS", " cars", "\tcars", "car"}) {
    Opened test(CrLf({mark, "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
    EXPECT_EQ(test.LastShown(), kNothingToChoose) << mark;
  }
}

TEST(DefinitionReader, AnEndThatIsNoMarkIsADataLineOfOneFieldAndFailsTheLoad) {
  for (const char* mark : {" end", "END", "\tend"}) {
    Opened test(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4", mark, "end"}));
    EXPECT_EQ(test.desktop.shown, StoppedAt(3)) << mark;
  }
}

TEST(DefinitionReader, TheLineThatOpensTheSectionIsNoRecord) {
  Opened test(CrLf({"cars,m,t,boat,A,g,a,k,2,3,4", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, ALineThatBeginsWithTheMarkInsideTheSectionIsARecord) {
  Opened test(CrLf({"cars", "cars,m,t,boat,A,g,a,k,2,3,4", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"cars|m|t|boat|A|g|a|k|2|3|4||", "1|m|t|boat|H|g|a|k|2|3|4||"}));
  Opened bare(CrLf({"cars", "cars", "end"}));
  EXPECT_EQ(bare.desktop.shown, StoppedAt(2));
}

TEST(DefinitionReader, TheRecordsOfAllSectionsJoinInOneTable) {
  Opened test(CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4", "end", "free text", "cars",
                    "2,m,t,boat,I,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "2|m|t|boat|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, WithoutAnEndTheSectionReachesToTheEndOfTheFile) {
  Opened test("cars\r\n1,m,t,boat,H,g,a,k,2,3,4\r\n2,m,t,boat,I,g,a,k,2,3,4");
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "2|m|t|boat|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, ALineIsCutBeforeItsFirstCommentMark) {
  Opened test(
      CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4 # a, b # c", "1,m,t,car,I,g,a,k,2,3,4#,5,6", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides),
            (Texts{"1|m|t|boat|H|g|a|k|2|3|4||", "1|m|t|car|I|g|a|k|2|3|4||"}));
}

TEST(DefinitionReader, EmptyLinesAndCommentsInTheFirstColumnAreSkipped) {
  Opened test(
      CrLf({"cars", "", "# 1,m,t,boat,X,g,a,k,2,3,4", "#", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(DefinitionReader, ACommentBehindABlankIsALineWithoutFieldsAndFailsTheLoad) {
  Opened test(CrLf({"# head", "cars", " # boats", "1,m,t,boat,H,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(test.desktop.shown, StoppedAt(3));
}

TEST(DefinitionReader, ALineOfBlanksOrTabsFailsTheLoad) {
  for (const char* line : {" ", "\t", " \t "}) {
    Opened test(CrLf({"cars", line, "end"}));
    EXPECT_EQ(test.desktop.shown, StoppedAt(2));
  }
}

TEST(DefinitionReader, MarksWithACommentBehindThemAreMarks) {
  Opened test(
      CrLf({"cars # vehicles", "1,m,t,boat,H,g,a,k,2,3,4", "end# of them", "not a record"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(DefinitionReader, MarksBehindACommentMarkAreNone) {
  Opened test(CrLf({"cars", "#end", "1,m,t,boat,H,g,a,k,2,3,4", "end", "#cars", "free text"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(test.desktop.shown, kLoaded);
}

TEST(DefinitionReader, ACarriageReturnAloneEndsALine) {
  Opened test("cars\r1,m,t,boat,H,g,a,k,2,3,4\rend\rfree text\r");
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
}

TEST(DefinitionReader, LinesThatWereJoinedByMixedLineEndsAreReadAsJoined) {
  Opened test("cars\n1,m,t,boat,H,g,a,k,2,3,4\r\n,5,6\nend\n");
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4|5|6"});
}

TEST(DefinitionReader, ADamagedLineResetsTheWindowAndKeepsTheTableOfBefore) {
  Opened test(CrLf({"cars", "9,m,t,boat,OLD,g,a,k,2,3,4", "end"}));
  test.desktop.shown.clear();
  test.OpenDefinition(CrLf({"objs", "", "cars", "1,m,t,boat,H,g,a,k,2,3,4",
                            "2,m,t,boat,I,g,a,k,2,3", "3,m,t,boat,J,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(test.desktop.shown, StoppedAt(5));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"9|m|t|boat|OLD|g|a|k|2|3|4||"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_Ides), Texts{"1|m|t|boat|H|g|a|k|2|3|4||"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{});
  EXPECT_EQ(test.vars.CurrentFile, "");
  EXPECT_TRUE(test.vars.IsSaved);
  EXPECT_FALSE(test.main.cmdSave.IsEnabled());
  EXPECT_FALSE(test.main.SSTab2.IsEnabled());
  EXPECT_FALSE(test.main.FrameAutos.IsEnabled());
}

TEST(DefinitionReader, ADamagedFirstLineLeavesTheSnapshotOneEmptyRecord) {
  Opened test(CrLf({"cars", "1", "end"}));
  EXPECT_FALSE(test.vars.Ides.IsAllocated());
  EXPECT_EQ(TextsOf(test.vars.Kopie_Ides), Texts{"||||||||||||"});
}

TEST(DefinitionReader, AFileWithoutARecordEndsInTheFailureOfChoosing) {
  for (const std::string& text :
       {CrLf({"cars", "# none", "end"}), CrLf({"objs", "end"}), std::string()}) {
    Opened test(text);
    EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNothingToChoose}));
    EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"||||||||||||"});
    EXPECT_EQ(TextsOf(test.vars.Kopie_Ides), Texts{"||||||||||||"});
    EXPECT_EQ(test.vars.CurrentFile, "");
    EXPECT_FALSE(test.main.SSTab2.IsEnabled());
  }
}

TEST(DefinitionReader, ASecondFileReplacesTheTable) {
  Opened test(CrLf({"cars", "1,m,t,car,H,g,a,k,2,3,4,5,6", "2,m,t,car,I,g,a,k,2,3,4,5,6", "end"}));
  test.OpenDefinition(CrLf({"cars", "3,m,t,boat,J,g,a,k,2,3,4", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"3|m|t|boat|J|g|a|k|2|3|4||"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"J"});
}

std::string FileOfLines(int lines) {
  std::string text = "cars\r\n";
  for (int line = 1; line < lines; ++line) text += "1,m,t,boat,H,g,a,k,2,3,4\r\n";
  return text;
}

TEST(DefinitionReader, ReadsAsManyLinesAsSixteenBitsCount) {
  Opened test(FileOfLines(32767));
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_EQ(test.vars.Ides.Count(), 32766);
  EXPECT_EQ(test.main.cmbAutos.Count(), 32766);
}

TEST(DefinitionReader, TheLineBehindThatIsAnOverflow) {
  Opened test(FileOfLines(32768));
  EXPECT_EQ(test.desktop.shown,
            (Texts{"open", "hourglass", "normal", "error: Error: 6 - Overflow"}));
  EXPECT_FALSE(test.vars.Ides.IsAllocated());
  EXPECT_EQ(test.vars.Kopie_Ides.Count(), 32766);
  EXPECT_EQ(test.vars.CurrentFile, "");
}

TEST(DefinitionReader, LinesOutsideTheSectionCountToo) {
  std::string text = CrLf({"cars", "1,m,t,boat,H,g,a,k,2,3,4", "end"});
  for (int line = 3; line < 32768; ++line) text += "\r\n";
  Opened test(text);
  EXPECT_EQ(test.LastShown(), "error: Error: 6 - Overflow");
}

}  // namespace
}  // namespace wheelwright::testing
