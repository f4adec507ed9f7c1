#include "gamefiles/HandlingReader.h"
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
  EXPECT_EQ(TokensOf(test.vars.Cars), std::vector<Tokens>{Tokens(33)});
  EXPECT_EQ(TokensOf(test.vars.Kopie_Cars), std::vector<Tokens>{Tokens(33)});
}

// The first pass: author and date

TEST_F(HandlingReaderTest, AuthorAndDateAreTakenFromComments) {
  Read(CrLf({"; Author: Ada B. Writer  ", ";  Created  1 May 2003 "}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "Ada B. Writer");
  EXPECT_EQ(test.main.txtDate.Text(), "1 May 2003");
}

TEST_F(HandlingReaderTest, TheCharacterBehindTheWordIsSkippedWhateverItIs) {
  Read(CrLf({"; author:Xada", "; CREATED=may"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "ada");
  EXPECT_EQ(test.main.txtDate.Text(), "may");
}

TEST_F(HandlingReaderTest, AWordAtTheLinesEndGivesAnEmptyText) {
  test.main.txtAuthor.SetText("old");
  test.main.txtDate.SetText("old");
  Read(CrLf({"; Author:", "; Created"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "");
  EXPECT_EQ(test.main.txtDate.Text(), "");
}

TEST_F(HandlingReaderTest, OneLineMayHoldBoth) {
  Read(CrLf({"; Author: Ada, created 2003"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "Ada, created 2003");
  EXPECT_EQ(test.main.txtDate.Text(), "2003");
}

TEST_F(HandlingReaderTest, ALaterMatchOverwritesAnEarlierOne) {
  Read(CrLf({"; Author: Ada", "; Created 2003", "; Author: Bob", "; Created 2004"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "Bob");
  EXPECT_EQ(test.main.txtDate.Text(), "2004");
}

TEST_F(HandlingReaderTest, TheFirstMatchInALineCounts) {
  Read(CrLf({"; Author: Ada author: Bob"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "Ada author: Bob");
}

TEST_F(HandlingReaderTest, TheSearchStartsAtTheFirstSemicolonOfTheHead) {
  Read(CrLf({"Author: A ;", "created;"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "");
  EXPECT_EQ(test.main.txtDate.Text(), "");
}

TEST_F(HandlingReaderTest, WithoutASemicolonInTheHeadTheSearchStartsAtTheLinesBegin) {
  Read(CrLf({"Author: Ada", "% created 2003 ; created 2004"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "Ada");
  EXPECT_EQ(test.main.txtDate.Text(), "2003 ; created 2004");
}

TEST_F(HandlingReaderTest, AVehicleLineIsntSearched) {
  Read(CrLf({"BUS 1500.0 2.6 ; Author: Ada, created 2003"}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "");
  EXPECT_EQ(test.main.txtDate.Text(), "");
}

TEST_F(HandlingReaderTest, TheProgramsOwnBannerFillsTheDate) {
  Read(CrLf({"; File created with Wheelwright V1.0.0", VehicleLineOf("BUS")}));
  EXPECT_EQ(test.main.txtDate.Text(), "with Wheelwright V1.0.0");
}

TEST_F(HandlingReaderTest, ADateLineBehindTheBannerWins) {
  Read(CrLf({"; File created with Wheelwright V1.0.0", "; Created 2003", VehicleLineOf("BUS")}));
  EXPECT_EQ(test.main.txtDate.Text(), "2003");
}

TEST_F(HandlingReaderTest, OnlyBlanksAreCutOffAuthorAndDate) {
  Read(CrLf({"; Author:  \tAda\t "}));
  EXPECT_EQ(test.main.txtAuthor.Text(), "\tAda\t");
}

// Between the passes

TEST_F(HandlingReaderTest, RowsOfTheFirstPassAreGoneAndTheWindowStays) {
  Read(CrLf({"  4711 1500.0 2.6 9.1"}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_TRUE(test.error.IsVisible());
}

TEST_F(HandlingReaderTest, RowsOfAnEarlierFileAreGone) {
  test.error.lstErrors.AddRow({"OLD", "", "old"});
  Read(CrLf({VehicleLineOf("BUS")}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
}

// The second pass: records

TEST_F(HandlingReaderTest, TokensComeThroughAsTheyStand) {
  Read(CrLf({Joined(TokensWith("BUS", 10, "0.70"), " \t "), Joined(GoodTokens("TAXI"), "\t")}));
  const std::vector<Tokens> expected = {TokensWith("BUS", 10, "0.70"), GoodTokens("TAXI")};
  EXPECT_EQ(TokensOf(test.vars.Kopie_Cars), expected);
  EXPECT_EQ(TokensOf(test.vars.Cars), expected);
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
}

TEST_F(HandlingReaderTest, TheTrailingCommentIsCutOff) {
  Read(CrLf({VehicleLineOf("BUS") + " ; % TAXI 7", VehicleLineOf("TAXI") + ";! BUS"}));
  EXPECT_EQ(TokensOf(test.vars.Cars), (std::vector<Tokens>{GoodTokens("BUS"), GoodTokens("TAXI")}));
  EXPECT_EQ(Marked(), (Kinds{0, 0}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
}

TEST_F(HandlingReaderTest, ACommentLineMakesNoRecord) {
  Read(CrLf({VehicleLineOf("BUS"), "; " + VehicleLineOf("BUS"), ";" + VehicleLineOf("BUS")}));
  EXPECT_EQ(Recorded(), (Names{"BUS"}));
}

TEST_F(HandlingReaderTest, ALineWithoutLightsGetsTheirDefaultsAndOneRow) {
  Tokens tokens = GoodTokens("BUS");
  tokens.resize(31);
  Read(CrLf({Joined(tokens)}));
  tokens.insert(tokens.end(), {"0", "0"});
  EXPECT_EQ(TokensOf(test.vars.Cars), std::vector<Tokens>{tokens});
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", "", "E102: 31 E103"}}));
  EXPECT_TRUE(test.error.IsVisible());
}

TEST_F(HandlingReaderTest, TokensTooManyGiveARowAndTheFirst33Count) {
  Read(CrLf({VehicleLineOf("BUS") + " 7 8"}));
  EXPECT_EQ(TokensOf(test.vars.Cars), std::vector<Tokens>{GoodTokens("BUS")});
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", "", "E102: 35 E103"}}));
}

TEST_F(HandlingReaderTest, RowsComeInTheOrderOfTheLines) {
  Read(CrLf({Joined(TokensWith("TAXI", 2, "wide")), "BUS heavy        ",
             Joined(TokensWith("BIKE", 32, "red"))}));
  EXPECT_EQ(test.error.lstErrors.Rows(),
            (Rows{{"TAXI", test.main.lblBreite.Caption(), "E105"},
                  {"BUS", "", "E102: 2 E103"},
                  {"BUS", test.main.lblGewicht.Caption(), "E105"},
                  {"BIKE", test.main.lblRearLichter.Caption(), "E105"}}));
}

TEST_F(HandlingReaderTest, ABadTokenIsKept) {
  Read(CrLf({Joined(TokensWith("BUS", 1, "heavy"))}));
  EXPECT_EQ(TokensOf(test.vars.Cars), std::vector<Tokens>{TokensWith("BUS", 1, "heavy")});
}

TEST_F(HandlingReaderTest, ANameThatIsThePrefixOfAnotherGivesTwoRecordsOfTheLongerLine) {
  Read(CrLf({VehicleLineOf("BUSX", "2.0"), VehicleLineOf("BUS", "1.0")}));
  EXPECT_EQ(TokensOf(test.vars.Cars),
            (std::vector<Tokens>{TokensWith("BUSX", 1, "2.0"), TokensWith("BUSX", 1, "2.0"),
                                 TokensWith("BUS", 1, "1.0")}));
}

TEST_F(HandlingReaderTest, TwoLinesOfOneNameGiveARecordForEachListPosition) {
  Read(CrLf({VehicleLineOf("BUS", "1.0"), VehicleLineOf("BUS", "2.0")}));
  EXPECT_EQ(Listed(), (Names{"BUS", "BUS"}));
  EXPECT_EQ(TokensOf(test.vars.Cars),
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
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUSSTOP", "", "E102: 1 E103"}}));
}

TEST_F(HandlingReaderTest, AnEarlierTableIsReplacedAsAWhole) {
  Read(CrLf({VehicleLineOf("BUS"), VehicleLineOf("TAXI"), "% TAXI"}));
  Read(CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(Recorded(), (Names{"VAN"}));
  EXPECT_EQ(Marked(), (Kinds{0}));
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
  EXPECT_EQ(test.main.cmbAutos.Count(), 32767);
  EXPECT_EQ(test.vars.Cars.UpperBound(), 32766);
  EXPECT_EQ(test.vars.Cars.At(32766).CarName, "V32766");
}

TEST_F(HandlingReaderTest, OneVehicleMoreIsAnOverflow) {
  EXPECT_EQ(FailureOf(LinesOfVehicles(32768)), 6);
  EXPECT_EQ(test.vars.Kopie_Cars.Count(), 32768);
  EXPECT_FALSE(test.vars.Cars.IsAllocated());
}

TEST_F(HandlingReaderTest, AListMayBeLongerThanTheRecordsCanBeCounted) {
  std::string text;
  for (int i = 0; i < 32768; ++i) text += "  V1 1500.0 2.6\r\n";
  Read(text + "V2            1500.0 2.6\r\n");
  EXPECT_EQ(test.main.cmbAutos.Count(), 32769);
  EXPECT_EQ(test.vars.Cars.Count(), 1);
  EXPECT_EQ(test.vars.Cars.At(0).CarName, "V2");
}

TEST_F(HandlingReaderTest, TheStepPastTheGreatestCountOfRecordsIsAnOverflow) {
  // 181 list positions times 181 lines of one name make 32,761 records, six more reach the limit.
  std::string text;
  for (int i = 0; i < 181; ++i) text += "BUS 1500.0 2.6 9.1\r\n";
  for (const char* name : {"V1", "V2", "V3", "V4", "V5", "V6"}) {
    text += std::string(name) + " 1500.0 2.6 9.1\r\n";
  }
  Read(text);
  EXPECT_EQ(test.vars.Cars.Count(), 32767);
  EXPECT_EQ(FailureOf(text + "V7 1500.0 2.6 9.1\r\n"), 6);
  EXPECT_EQ(test.vars.Cars.Count(), 32767);
}

}  // namespace
}  // namespace wheelwright::testing
