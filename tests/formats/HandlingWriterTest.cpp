#include "core/Text.h"
#include "formats/HandlingFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

const std::string kHandlingBanner =
    "; File created with Wheelwright V1.0.0\r\n; Homepage: https://wheelwright.example/\r\n";
const std::string kTheEnd = ";\r\n;the end";

class HandlingWriterTest : public ::testing::Test {
 protected:
  // The vehicles of the table, in its order, and all of their names in the list's.
  void Hold(const std::vector<Car>& held) {
    cars = TableOf(held);
    for (const Car& car : held) names.push_back(car.CarName);
    std::stable_sort(names.begin(), names.end(), SortsBefore);
  }

  std::string Rewrite(const std::string& text) const {
    return WriteHandling(text, {names, cars, author, created});
  }

  std::vector<std::string> names;
  Table<Car> cars;
  std::string author = "Ada";
  std::string created = "1 May 2003";
};

const Car kBus = CarOf(GoodTokens("BUS"));
const Car kTaxi = CarOf(GoodTokens("TAXI"));

// Banner and end

TEST_F(HandlingWriterTest, AnEmptyTemplateGivesBannerAndEnd) {
  Hold({kBus});
  EXPECT_EQ(Rewrite(""), kHandlingBanner + kTheEnd);
}

TEST_F(HandlingWriterTest, AnOldBannerIsDroppedWhateverItsVersionAndCase) {
  EXPECT_EQ(Rewrite(CrLf({"; a", "; FILE created with WHEELWRIGHT V0.1 by me",
                          "; old ; file created with wheelwright v", "; b"})),
            kHandlingBanner + "; a\r\n; b\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, AnOldHomePageIsDroppedAndAnotherStays) {
  EXPECT_EQ(Rewrite(CrLf({"; HOMEPAGE: HTTPS://wheelwright.example/ and more",
                          "; Homepage: https://elsewhere.example/", "; Homepage:"})),
            kHandlingBanner + "; Homepage: https://elsewhere.example/\r\n; Homepage:\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, ABannerOfAnotherMarkStays) {
  EXPECT_EQ(Rewrite(CrLf({";# File created with Wheelwright V1.0.0",
                          ";File created with "
                          "Wheelwright V1.0.0"})),
            kHandlingBanner +
                ";# File created with Wheelwright V1.0.0\r\n;File created with Wheelwright "
                "V1.0.0\r\n" +
                kTheEnd);
}

TEST_F(HandlingWriterTest, TheEndStaysWhereItIsIgnoringCase) {
  EXPECT_EQ(Rewrite(CrLf({";THE End", "; more"})), kHandlingBanner + ";THE End\r\n; more\r\n");
}

TEST_F(HandlingWriterTest, TheEndCountsAnywhereInTheText) {
  EXPECT_EQ(Rewrite(CrLf({"% BOAT 0.5 ;the endless sea"})),
            kHandlingBanner + "% BOAT 0.5 ;the endless sea\r\n");
  author = ";the end";
  EXPECT_EQ(Rewrite(CrLf({"; Author: Ada"})), kHandlingBanner + "; Author: ;the end\r\n");
}

TEST_F(HandlingWriterTest, ABlankInTheEndMakesItNone) {
  EXPECT_EQ(Rewrite(CrLf({"; the end"})), kHandlingBanner + "; the end\r\n" + kTheEnd);
}

// The cases of a template line

TEST_F(HandlingWriterTest, TheFirstVehicleLineGivesWayToAllVehiclesAndTheOthersGo) {
  Hold({kTaxi, kBus});
  EXPECT_EQ(Rewrite(CrLf({"; a", VehicleLineOf("VAN"), "; b", VehicleLineOf("BUS"), "; c"})),
            kHandlingBanner + "; a\r\n" + CrLf({VehicleLineOf("BUS"), VehicleLineOf("TAXI"), "; b", "; c"}) +
                kTheEnd);
}

TEST_F(HandlingWriterTest, AnEmptyLineTakesTheVehiclesAndLaterOnesVanish) {
  Hold({kBus});
  EXPECT_EQ(Rewrite(CrLf({"; a", "", "; b", VehicleLineOf("BUS"), "", "   ", "; c"})),
            kHandlingBanner + CrLf({"; a", VehicleLineOf("BUS"), "; b", "; c"}) + kTheEnd);
}

TEST_F(HandlingWriterTest, AShortLineWithoutMarksCountsAsAVehicleLine) {
  Hold({kBus});
  EXPECT_EQ(Rewrite(CrLf({"; a", "x", "; b"})),
            kHandlingBanner + CrLf({"; a", VehicleLineOf("BUS"), "; b"}) + kTheEnd);
}

TEST_F(HandlingWriterTest, MarksBehindTheHeadDontKeepALine) {
  Hold({kBus});
  EXPECT_EQ(Rewrite(CrLf({"12345678901234; a", "12345678901234% b", "12345678901234$!"})),
            kHandlingBanner + CrLf({VehicleLineOf("BUS")}) + kTheEnd);
}

TEST_F(HandlingWriterTest, AMarkInTheLastColumnOfTheHeadKeepsALine) {
  EXPECT_EQ(
      Rewrite(CrLf({"1234567890123;", "1234567890123%", "1234567890123!", "1234567890123$"})),
      kHandlingBanner + "1234567890123;\r\n1234567890123%\r\n1234567890123!\r\n1234567890123$\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, SpecialLinesAreCopiedAsTheyStand) {
  const std::string lines =
      CrLf({"%\tBOAT  0.5  ", "! BIKE\x01 0.5 ; Author: Bob", "$ PLANE", "  a % ; Created 1999"});
  EXPECT_EQ(Rewrite(lines), kHandlingBanner + lines + kTheEnd);
}

TEST_F(HandlingWriterTest, ACommentWithAMarkInTheHeadIsCopiedWhateverItSays) {
  const std::string lines =
      CrLf({"; % Author: Bob", "; ! ; Created 1999", ";$; File created with Wheelwright V1.0.0",
            "%; Homepage: https://wheelwright.example/"});
  EXPECT_EQ(Rewrite(lines), kHandlingBanner + lines + kTheEnd);
}

TEST_F(HandlingWriterTest, AuthorIsReplaced) {
  EXPECT_EQ(Rewrite(CrLf({"; the AUTHOR: of old", "; a", "      ;author:"})),
            kHandlingBanner + "; Author: Ada\r\n; a\r\n; Author: Ada\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, AuthorBeforeTheSemicolonIsnt) {
  EXPECT_EQ(Rewrite(CrLf({"Author: Bob ;"})), kHandlingBanner + "Author: Bob ;\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, DateIsReplaced) {
  EXPECT_EQ(
      Rewrite(CrLf({"; CREATED in 1999", ";; created", "; Createdness"})),
      kHandlingBanner + "; Created 1 May 2003\r\n; Created 1 May 2003\r\n; Created 1 May 2003\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, DateNeedsExactlyOneBlankBehindTheSemicolon) {
  const std::string lines = CrLf({";Created 1999", ";  Created 1999", "; It was Created 1999"});
  EXPECT_EQ(Rewrite(lines), kHandlingBanner + lines + kTheEnd);
}

TEST_F(HandlingWriterTest, AuthorComesBeforeDate) {
  EXPECT_EQ(Rewrite(CrLf({"; Created by the author: Bob"})), kHandlingBanner + "; Author: Ada\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, AuthorAndDateComeBeforeTheBanner) {
  EXPECT_EQ(Rewrite(CrLf({"; File created with Wheelwright V1.0.0 ; Created 1999",
                          "; Homepage: https://wheelwright.example/ Author: Bob"})),
            kHandlingBanner + "; Created 1 May 2003\r\n; Author: Ada\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, EmptyAuthorAndDateLeaveOneBlank) {
  author = "";
  created = "";
  EXPECT_EQ(Rewrite(CrLf({"; Author: Bob", "; Created 1999"})),
            kHandlingBanner + "; Author: \r\n; Created \r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, NoAuthorOrDateLineIsEverAdded) {
  EXPECT_EQ(Rewrite(CrLf({"; a"})), kHandlingBanner + "; a\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, OtherCommentsAreCopiedAsTheyStand) {
  const std::string lines = CrLf({";", "; a\tb  \xFF\x01 ", "   ;indented", "BUS 1.0 ; short"});
  EXPECT_EQ(Rewrite(lines), kHandlingBanner + lines + kTheEnd);
}

TEST_F(HandlingWriterTest, EveryLineOfTheTemplateEndsInBothCharacters) {
  EXPECT_EQ(Rewrite("; a\r; b\r\n; c"), kHandlingBanner + "; a\r\n; b\r\n; c\r\n" + kTheEnd);
}

// The vehicles

TEST_F(HandlingWriterTest, VehiclesComeInTheOrderOfTheList) {
  Hold({CarOf(GoodTokens("bus")), CarOf(GoodTokens("TAXI")), CarOf(GoodTokens("COACH"))});
  EXPECT_EQ(Rewrite(CrLf({""})),
            kHandlingBanner + CrLf({VehicleLineOf("bus"), VehicleLineOf("COACH"), VehicleLineOf("TAXI")}) +
                kTheEnd);
}

TEST_F(HandlingWriterTest, AListOutOfOrderIsWrittenAsItStands) {
  Hold({kTaxi, kBus});
  names[0] = "ZEBRA";
  cars.At(1).CarName = "ZEBRA";
  EXPECT_EQ(Rewrite(CrLf({""})),
            kHandlingBanner + CrLf({VehicleLineOf("ZEBRA"), VehicleLineOf("TAXI")}) + kTheEnd);
}

TEST_F(HandlingWriterTest, ANameThatTwoRecordsShareWritesTwoLinesForEachListPosition) {
  Hold({CarOf(TokensWith("BUS", 1, "1.0")), kTaxi, CarOf(TokensWith("BUS", 1, "2.0"))});
  const std::string both = CrLf({VehicleLineOf("BUS", "1.0"), VehicleLineOf("BUS", "2.0")});
  EXPECT_EQ(Rewrite(CrLf({""})), kHandlingBanner + both + both + VehicleLineOf("TAXI") + "\r\n" + kTheEnd);
}

TEST_F(HandlingWriterTest, ARecordWithoutAListEntryDisappears) {
  Hold({kBus});
  cars = TableOf({kBus, CarOf(GoodTokens("SIXTEENCHARACTER")), CarOf(GoodTokens("bus"))});
  EXPECT_EQ(Rewrite(CrLf({""})), kHandlingBanner + CrLf({VehicleLineOf("BUS")}) + kTheEnd);
}

TEST_F(HandlingWriterTest, AListEntryWithoutARecordWritesNothing) {
  Hold({kBus});
  names.push_back("GONE");
  EXPECT_EQ(Rewrite(CrLf({""})), kHandlingBanner + CrLf({VehicleLineOf("BUS")}) + kTheEnd);
}

TEST_F(HandlingWriterTest, SpecialLinesOfDeletedVehiclesStayAndNoneIsMade) {
  Car boat = CarOf(GoodTokens("BOAT"));
  boat.LineKind = kPercentLine;
  Hold({boat});
  EXPECT_EQ(Rewrite(CrLf({"% GONE 0.5", VehicleLineOf("GONE")})),
            kHandlingBanner + CrLf({"% GONE 0.5", VehicleLineOf("BOAT")}) + kTheEnd);
}

TEST_F(HandlingWriterTest, NameMassAndValueArePadded) {
  Tokens tokens;
  for (int i = 0; i < 33; ++i) tokens.push_back(std::to_string(i));
  Hold({CarOf(tokens)});
  EXPECT_EQ(Rewrite(CrLf({""})),
            kHandlingBanner +
                "0                    1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 "
                "24     25 26 27 28 29 30 31 32\r\n" +
                kTheEnd);
}

TEST_F(HandlingWriterTest, LongerValuesAreWrittenWhole) {
  Tokens tokens(33, "x");
  tokens[0] = "FIFTEENLETTERS!";
  tokens[1] = "12345.678";
  tokens[25] = "1234567";
  Hold({CarOf(tokens)});
  EXPECT_EQ(Rewrite(CrLf({""})),
            kHandlingBanner +
                "FIFTEENLETTERS! 12345.678 x x x x x x x x x x x x x x x x x x x x x x x 1234567 x x "
                "x x x x x\r\n" +
                kTheEnd);
}

TEST_F(HandlingWriterTest, AnEmptySlotWritesTwoBlanksInARow) {
  Hold({CarOf(TokensWith("BUS", 3, ""))});
  EXPECT_EQ(Rewrite(CrLf({""})),
            kHandlingBanner +
                "BUS             1500.0 1.9  1.5 0.0 0.1 -0.2 80 0.70 0.75 0.51 5 160.0 20.0 R P 6.1 "
                "0.60 0 35.0 1.6 0.08 0.20 0.50   9000 0.35 -0.16 0.5 0.3 0000003 0 1\r\n" +
                kTheEnd);
}

TEST_F(HandlingWriterTest, AnEmptySlotMovesTheLaterOnesToTheLeftOnTheNextRead) {
  Hold({CarOf(TokensWith("BUS", 3, ""))});
  HandlingFile again;
  ReadHandling(Rewrite(CrLf({""})), again);
  Tokens moved = GoodTokens("BUS");
  moved.erase(moved.begin() + 3);
  moved.emplace_back("0");
  EXPECT_EQ(TokensOf(again.cars), std::vector<Tokens>{moved});
}

TEST_F(HandlingWriterTest, AnUnallocatedTableIsAnIndexFailureOnlyWhenItIsWalked) {
  EXPECT_EQ(Rewrite(CrLf({""})), kHandlingBanner + kTheEnd);
  names.push_back("BUS");
  EXPECT_EQ(Rewrite(CrLf({"; a"})), kHandlingBanner + "; a\r\n" + kTheEnd);
  EXPECT_EQ(NumberThrownBy([&] { Rewrite(CrLf({""})); }), 9);
}

}  // namespace
}  // namespace wheelwright::testing
