#include "support/HandlingReading.h"

namespace wheelwright::testing {
namespace {

using HandlingReaderTest = HandlingReading;

// The first pass: the list

TEST_F(HandlingReaderTest, TheListSortsItselfAndTheTableKeepsTheOrderOfTheFile) {
  Read(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("bus"), VehicleLineOf("COACH")}));
  EXPECT_EQ(Listed(), (Names{"bus", "COACH", "TAXI"}));
  EXPECT_EQ(Recorded(), (Names{"TAXI", "bus", "COACH"}));
}

TEST_F(HandlingReaderTest, ALineOf14CharactersIsNoVehicleAndOneOf15Is) {
  Read(CrLf({"BUS 1234567890", "TAXI 1234567890"}));
  EXPECT_EQ(Listed(), (Names{"TAXI"}));
}

TEST_F(HandlingReaderTest, AMarkInTheHeadMakesALineNoVehicle) {
  Read(CrLf({"BUS1 1500.0  ; a", "BUS2 1500.0 % a", "BUS3 1500.0 $ a", "BUS4 1500.0 ! a"}));
  EXPECT_EQ(Listed(), Names{});
}

TEST_F(HandlingReaderTest, AMarkInColumn14CountsAndOneInColumn15Doesnt) {
  Read(CrLf({"BUS1 12345678;;", "BUS2 12345678%%", "BUS3 123456789;", "BUS4 123456789"}));
  EXPECT_EQ(Listed(), (Names{"BUS3"}));
}

TEST_F(HandlingReaderTest, ACommentBehindColumn14AddsABogusName) {
  Read(CrLf({"               ; only a remark", "no vehicle at ; all"}));
  EXPECT_EQ(Listed(), (Names{"0.0", "no"}));
  EXPECT_EQ(Recorded(), (Names{"no"}));
}

TEST_F(HandlingReaderTest, ANameThatStartsBeyondTheHeadIsntSeen) {
  Read(CrLf({"              BUS 1500.0"}));
  EXPECT_EQ(Listed(), (Names{"0.0"}));
  EXPECT_EQ(Recorded(), (Names{""}));
}

TEST_F(HandlingReaderTest, ALongNameIsCutInTheListAndWholeInItsRecord) {
  Read(CrLf({VehicleLineOf("SIXTEENCHARACTER")}));
  EXPECT_EQ(Listed(), (Names{"SIXTEENCHARACT"}));
  EXPECT_EQ(Recorded(), (Names{"SIXTEENCHARACTER"}));
}

TEST_F(HandlingReaderTest, AnIndentedLineIsListedButMakesNoRecord) {
  Read(CrLf({" " + VehicleLineOf("BUS"), VehicleLineOf("TAXI")}));
  EXPECT_EQ(Listed(), (Names{"BUS", "TAXI"}));
  EXPECT_EQ(Recorded(), (Names{"TAXI"}));
}

TEST_F(HandlingReaderTest, ATabEndsTheNameInTheHead) {
  Read(CrLf({"BUS\t5500.0\t2.6\t9.1"}));
  EXPECT_EQ(Listed(), (Names{"BUS"}));
}

TEST_F(HandlingReaderTest, ABareLineFeedIsPartOfItsLine) {
  Read("BUS 1500.0 2.6\n" + VehicleLineOf("TAXI") + "\r\n");
  EXPECT_EQ(Listed(), (Names{"BUS"}));
}

TEST_F(HandlingReaderTest, ACarriageReturnAloneEndsALineAndTheLastLineNeedsNoEnd) {
  Read(VehicleLineOf("TAXI") + "\r" + VehicleLineOf("BUS"));
  EXPECT_EQ(Recorded(), (Names{"TAXI", "BUS"}));
}

TEST_F(HandlingReaderTest, AnEmptyFileLeavesOneEmptyRecord) {
  Read("");
  EXPECT_EQ(Listed(), Names{});
  EXPECT_EQ(TokensOf(file.cars), std::vector<Tokens>{Tokens(33)});
}

// The first pass: author and date

TEST_F(HandlingReaderTest, AuthorAndDateAreTakenFromComments) {
  Read(CrLf({"; Author: Ada B. Writer  ", ";  Created  1 May 2003 "}));
  EXPECT_EQ(file.author, "Ada B. Writer");
  EXPECT_EQ(file.created, "1 May 2003");
}

TEST_F(HandlingReaderTest, TheCharacterBehindTheWordIsSkippedWhateverItIs) {
  Read(CrLf({"; author:Xada", "; CREATED=may"}));
  EXPECT_EQ(file.author, "ada");
  EXPECT_EQ(file.created, "may");
}

TEST_F(HandlingReaderTest, AWordAtTheLinesEndGivesAnEmptyText) {
  Read(CrLf({"; Author:", "; Created"}));
  EXPECT_EQ(file.author, "");
  EXPECT_EQ(file.created, "");
}

TEST_F(HandlingReaderTest, OneLineMayHoldBoth) {
  Read(CrLf({"; Author: Ada, created 2003"}));
  EXPECT_EQ(file.author, "Ada, created 2003");
  EXPECT_EQ(file.created, "2003");
}

TEST_F(HandlingReaderTest, ALaterMatchOverwritesAnEarlierOne) {
  Read(CrLf({"; Author: Ada", "; Created 2003", "; Author: Bob", "; Created 2004"}));
  EXPECT_EQ(file.author, "Bob");
  EXPECT_EQ(file.created, "2004");
}

TEST_F(HandlingReaderTest, TheFirstMatchInALineCounts) {
  Read(CrLf({"; Author: Ada author: Bob"}));
  EXPECT_EQ(file.author, "Ada author: Bob");
}

TEST_F(HandlingReaderTest, TheSearchStartsAtTheFirstSemicolonOfTheHead) {
  Read(CrLf({"Author: A ;", "created;"}));
  EXPECT_EQ(file.author, "");
  EXPECT_EQ(file.created, "");
}

TEST_F(HandlingReaderTest, WithoutASemicolonInTheHeadTheSearchStartsAtTheLinesBegin) {
  Read(CrLf({"Author: Ada", "% created 2003 ; created 2004"}));
  EXPECT_EQ(file.author, "Ada");
  EXPECT_EQ(file.created, "2003 ; created 2004");
}

TEST_F(HandlingReaderTest, AVehicleLineIsntSearched) {
  Read(CrLf({"BUS 1500.0 2.6 ; Author: Ada, created 2003"}));
  EXPECT_EQ(file.author, "");
  EXPECT_EQ(file.created, "");
}

TEST_F(HandlingReaderTest, TheProgramsOwnBannerFillsTheDate) {
  Read(CrLf({"; File created with Wheelwright V1.0.0", VehicleLineOf("BUS")}));
  EXPECT_EQ(file.created, "with Wheelwright V1.0.0");
}

TEST_F(HandlingReaderTest, ADateLineBehindTheBannerWins) {
  Read(CrLf({"; File created with Wheelwright V1.0.0", "; Created 2003", VehicleLineOf("BUS")}));
  EXPECT_EQ(file.created, "2003");
}

TEST_F(HandlingReaderTest, OnlyBlanksAreCutOffAuthorAndDate) {
  Read(CrLf({"; Author:  \tAda\t "}));
  EXPECT_EQ(file.author, "\tAda\t");
}

// Between the passes

TEST_F(HandlingReaderTest, ProblemsOfTheFirstPassAreGoneButNotForgotten) {
  Read(CrLf({"  4711 1500.0 2.6 9.1"}));
  EXPECT_EQ(file.problems, LineProblems{});
  EXPECT_TRUE(file.hasOddNames);
  Read(CrLf({VehicleLineOf("BUS")}));
  EXPECT_FALSE(file.hasOddNames);
}

// The second pass: records

TEST_F(HandlingReaderTest, TokensComeThroughAsTheyStand) {
  Read(CrLf({Joined(TokensWith("BUS", 10, "0.70"), " \t "), Joined(GoodTokens("TAXI"), "\t")}));
  const std::vector<Tokens> expected = {TokensWith("BUS", 10, "0.70"), GoodTokens("TAXI")};
  EXPECT_EQ(TokensOf(file.cars), expected);
  EXPECT_EQ(file.problems, LineProblems{});
}

TEST_F(HandlingReaderTest, TheTrailingCommentIsCutOff) {
  Read(CrLf({VehicleLineOf("BUS") + " ; % TAXI 7", VehicleLineOf("TAXI") + ";! BUS"}));
  EXPECT_EQ(TokensOf(file.cars), (std::vector<Tokens>{GoodTokens("BUS"), GoodTokens("TAXI")}));
  EXPECT_EQ(Marked(), (Kinds{0, 0}));
  EXPECT_EQ(file.problems, LineProblems{});
}

TEST_F(HandlingReaderTest, ACommentLineMakesNoRecord) {
  Read(CrLf({VehicleLineOf("BUS"), "; " + VehicleLineOf("BUS"), ";" + VehicleLineOf("BUS")}));
  EXPECT_EQ(Recorded(), (Names{"BUS"}));
}

TEST_F(HandlingReaderTest, ALineWithoutLightsGetsTheirDefaultsAndOneProblem) {
  Tokens tokens = GoodTokens("BUS");
  tokens.resize(31);
  Read(CrLf({Joined(tokens)}));
  tokens.insert(tokens.end(), {"0", "0"});
  EXPECT_EQ(TokensOf(file.cars), std::vector<Tokens>{tokens});
  EXPECT_EQ(file.problems, LineProblems{WrongCount("BUS", 31)});
}

TEST_F(HandlingReaderTest, TokensTooManyAreAProblemAndTheFirst33Count) {
  Read(CrLf({VehicleLineOf("BUS") + " 7 8"}));
  EXPECT_EQ(TokensOf(file.cars), std::vector<Tokens>{GoodTokens("BUS")});
  EXPECT_EQ(file.problems, LineProblems{WrongCount("BUS", 35)});
}

TEST_F(HandlingReaderTest, ProblemsComeInTheOrderOfTheLines) {
  Read(CrLf(
      {Joined(TokensWith("TAXI", 2, "wide")), "BUS heavy        ", Joined(TokensWith("BIKE", 32, "red"))}));
  EXPECT_EQ(file.problems, (LineProblems{BadToken("TAXI", 2), WrongCount("BUS", 2), BadToken("BUS", 1),
                                         BadToken("BIKE", 32)}));
}

TEST_F(HandlingReaderTest, ABadTokenIsKept) {
  Read(CrLf({Joined(TokensWith("BUS", 1, "heavy"))}));
  EXPECT_EQ(TokensOf(file.cars), std::vector<Tokens>{TokensWith("BUS", 1, "heavy")});
}

TEST_F(HandlingReaderTest, ANameThatIsThePrefixOfAnotherGivesTwoRecordsOfTheLongerLine) {
  Read(CrLf({VehicleLineOf("BUSX", "2.0"), VehicleLineOf("BUS", "1.0")}));
  EXPECT_EQ(TokensOf(file.cars),
            (std::vector<Tokens>{TokensWith("BUSX", 1, "2.0"), TokensWith("BUSX", 1, "2.0"),
                                 TokensWith("BUS", 1, "1.0")}));
}

TEST_F(HandlingReaderTest, TwoLinesOfOneNameGiveARecordForEachListPosition) {
  Read(CrLf({VehicleLineOf("BUS", "1.0"), VehicleLineOf("BUS", "2.0")}));
  EXPECT_EQ(Listed(), (Names{"BUS", "BUS"}));
  EXPECT_EQ(TokensOf(file.cars),
            (std::vector<Tokens>{TokensWith("BUS", 1, "1.0"), TokensWith("BUS", 1, "1.0"),
                                 TokensWith("BUS", 1, "2.0"), TokensWith("BUS", 1, "2.0")}));
}

TEST_F(HandlingReaderTest, TheNamesCaseCountsAtALinesBegin) {
  Read(CrLf({VehicleLineOf("BUS"), "bus"}));
  EXPECT_EQ(Recorded(), (Names{"BUS"}));
}

TEST_F(HandlingReaderTest, AShortLineThatBeginsWithAListedNameMakesARecord) {
  Read(CrLf({VehicleLineOf("BUS"), "BUSSTOP"}));
  EXPECT_EQ(Recorded(), (Names{"BUS", "BUSSTOP"}));
  EXPECT_EQ(file.problems, LineProblems{WrongCount("BUSSTOP", 1)});
}

// 16-bit limits

std::string LinesOfVehicles(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    std::string digits = std::to_string(i);
    text += "V" + std::string(5 - digits.size(), '0') + digits + " 1500.0 2.6\r\n";
  }
  return text;
}

TEST_F(HandlingReaderTest, TheGreatestNumberOfVehiclesIsRead) {
  Read(LinesOfVehicles(32767));
  EXPECT_EQ(file.names.size(), 32767U);
  EXPECT_EQ(file.cars.UpperBound(), 32766);
  EXPECT_EQ(file.cars.At(32766).CarName, "V32766");
}

TEST_F(HandlingReaderTest, OneVehicleMoreIsAnOverflow) {
  EXPECT_EQ(FailureOf(LinesOfVehicles(32768)), 6);
  EXPECT_EQ(file.cars.Count(), 32768);
}

TEST_F(HandlingReaderTest, AListMayBeLongerThanTheRecordsCanBeCounted) {
  std::string text;
  for (int i = 0; i < 32768; ++i) text += "  V1 1500.0 2.6\r\n";
  Read(text + "V2            1500.0 2.6\r\n");
  EXPECT_EQ(file.names.size(), 32769U);
  EXPECT_EQ(file.cars.Count(), 1);
  EXPECT_EQ(file.cars.At(0).CarName, "V2");
}

TEST_F(HandlingReaderTest, TheStepPastTheGreatestCountOfRecordsIsAnOverflow) {
  // 181 list positions times 181 lines of one name make 32,761 records, six more reach the limit.
  std::string text;
  for (int i = 0; i < 181; ++i) text += "BUS 1500.0 2.6 9.1\r\n";
  for (const char* name : {"V1", "V2", "V3", "V4", "V5", "V6"}) {
    text += std::string(name) + " 1500.0 2.6 9.1\r\n";
  }
  Read(text);
  EXPECT_EQ(file.cars.Count(), 32767);
  EXPECT_EQ(FailureOf(text + "V7 1500.0 2.6 9.1\r\n"), 6);
  EXPECT_EQ(file.cars.Count(), 32768);
}

}  // namespace
}  // namespace wheelwright::testing
