#include "formats/Tokenisers.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

constexpr int kOverflow = 6;

std::string CommaField(std::string_view line, int index) {
  return std::string(CommaLine(line).GetCommaField(index));
}

TEST(CommaLineTest, GivesTheFieldsFromNoughtAndNothingOutsideThem) {
  EXPECT_EQ(CommaField("a,bb,ccc", 0), "a");
  EXPECT_EQ(CommaField("a,bb,ccc", 1), "bb");
  EXPECT_EQ(CommaField("a,bb,ccc", 2), "ccc");
  EXPECT_EQ(CommaField("a,bb", 2), "");
  EXPECT_EQ(CommaField("a,bb", 32767), "");
  EXPECT_EQ(CommaField("a,bb", -1), "");
  EXPECT_EQ(CommaField("", 0), "");
}

TEST(CommaLineTest, BlanksAndTabsAreNoPartOfAField) {
  EXPECT_EQ(CommaField(" \t a b\tc , \t d\t", 0), "abc");
  EXPECT_EQ(CommaField(" \t a b\tc , \t d\t", 1), "d");
  EXPECT_EQ(CommaField(" \t ", 0), "");
  EXPECT_EQ(CommaField("\xA0\v\n\x01,\xFC\"'", 0), "\xA0\v\n\x01");
}

TEST(CommaLineTest, KeepsEmptyFieldsInFrontAndBetween) {
  EXPECT_EQ(CommaField(",,b", 0), "");
  EXPECT_EQ(CommaField(",,b", 1), "");
  EXPECT_EQ(CommaField(",,b", 2), "b");
}

TEST(CommaLineTest, CountsOneMoreThanThereAreCommas) {
  EXPECT_EQ(CommaLine("a,b,c").CountCommaFields(), 3);
  EXPECT_EQ(CommaLine(" a ,\tb , ").CountCommaFields(), 3);
  EXPECT_EQ(CommaLine(",").CountCommaFields(), 2);
  EXPECT_EQ(CommaLine("").CountCommaFields(), 0);
  EXPECT_EQ(CommaLine(" \t  \t").CountCommaFields(), 0);
}

// The counts before and after each of some calls.
std::vector<int> CountsAroundCalls(const std::string& text, int calls, int index = 0) {
  CommaLine line(text);
  std::vector<int> counts = {line.CountCommaFields()};
  for (int call = 0; call < calls; ++call) {
    line.GetCommaField(index);
    counts.push_back(line.CountCommaFields());
  }
  return counts;
}

TEST(CommaLineTest, EachCallTakesOneCommaAtTheEndAway) {
  EXPECT_EQ(CountsAroundCalls("0,1,2,3,4,5,6,7,8,9,", 2), (std::vector{11, 10, 10}));
  EXPECT_EQ(CountsAroundCalls("0,1,2,3,4,5,6,7,8,9,10,", 2), (std::vector{12, 11, 11}));
  EXPECT_EQ(CountsAroundCalls("0,1,,,,", 5), (std::vector{6, 5, 4, 3, 2, 2}));
  EXPECT_EQ(CountsAroundCalls(",,,", 4), (std::vector{4, 3, 2, 0, 0}));
  EXPECT_EQ(CountsAroundCalls("a,b, \t", 2, -1), (std::vector{3, 2, 2}));
  EXPECT_EQ(CountsAroundCalls("a,b,", 2, 9), (std::vector{3, 2, 2}));
}

TEST(CommaLineTest, ARunOfTwelveCommasIsGoneAfterTwelveCalls) {
  const std::string twelve(12, ',');
  EXPECT_EQ(CountsAroundCalls("0" + twelve, 12).back(), 1);
  EXPECT_EQ(CountsAroundCalls("0" + twelve + ",", 12).back(), 2);
}

TEST(CommaLineTest, CountsAsFarAsSixteenBitsGo) {
  EXPECT_EQ(CommaLine(std::string(32766, ',')).CountCommaFields(), 32767);
  const CommaLine tooLong(std::string(32767, ','));
  EXPECT_EQ(NumberThrownBy([&] { tooLong.CountCommaFields(); }), kOverflow);
}

TEST(CommaLineTest, FailsAtAnyNumberOfFieldsBeyondThat) {
  CommaLine line("a,b," + std::string(200'000, ','));
  EXPECT_EQ(NumberThrownBy([&] { line.CountCommaFields(); }), kOverflow);
  EXPECT_EQ(line.GetCommaField(1), "b");
  EXPECT_EQ(NumberThrownBy([&] { line.CountCommaFields(); }), kOverflow);
}

TEST(SpaceLineTest, GivesTheFieldsBetweenBlanksAndTabs) {
  const SpaceLine line("  #\t7 \t navy  blue,a\t");
  EXPECT_EQ(line.CountSpaceFields(), 4);
  EXPECT_EQ(line.GetSpaceField(0), "#");
  EXPECT_EQ(line.GetSpaceField(2), "navy");
  EXPECT_EQ(line.GetSpaceField(3), "blue,a");
  EXPECT_EQ(line.GetSpaceField(4), "");
  EXPECT_EQ(SpaceLine(" \t ").CountSpaceFields(), 0);
  EXPECT_EQ(SpaceLine("").GetSpaceField(0), "");
}

TEST(SpaceLineTest, OtherControlCharactersAndHardBlanksAreNoSeparators) {
  EXPECT_EQ(SpaceLine("\nBUS\v5500.0\xA0 2.6\f").GetSpaceField(0), "\nBUS\v5500.0\xA0");
}

TEST(SpaceLineTest, BlanksBehindTheEndOfALineAreNotItsOwn) {
  const std::string_view text = "BUS  7 8  9";
  EXPECT_EQ(SpaceLine(text.substr(0, 4)).CountSpaceFields(), 1);
  EXPECT_EQ(SpaceLine(text.substr(0, 6)).CountSpaceFields(), 2);
}

TEST(CleanedLineTest, LeavesSingleBlanksBetweenTheFieldsAndNoneAtTheEnds) {
  EXPECT_EQ(CleanedLine(" \t BUS\t5500.0\t\t2.6 \t \t 9.1 \t"), "BUS 5500.0 2.6 9.1");
  EXPECT_EQ(CleanedLine("\nBUS\v5500.0\xA0 2.6\f"), "\nBUS\v5500.0\xA0 2.6\f");
  EXPECT_EQ(CleanedLine(" \t \t "), "");
}

}  // namespace
}  // namespace wheelwright::testing
