#include "gamefiles/CommaFields.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace wheelwright::testing {
namespace {

constexpr int kOverflow = 6;

// What a call gives and what it leaves of the line.
struct FieldAndLine {
  std::string field;
  std::string line;
  bool operator==(const FieldAndLine&) const = default;
};

void PrintTo(const FieldAndLine& result, std::ostream* out) {
  *out << '"' << result.field << "\" and \"" << result.line << '"';
}

FieldAndLine CommaFieldOf(std::string line, int index) {
  std::string field = GetCommaField(line, index);
  return {std::move(field), std::move(line)};
}

FieldAndLine SpaceFieldOf(std::string line, int index) {
  std::string field = GetSpaceField(line, index);
  return {std::move(field), std::move(line)};
}

TEST(GetCommaField, GivesTheFieldsFromNought) {
  EXPECT_EQ(CommaFieldOf("a,bb,ccc", 0), (FieldAndLine{"a", "a,bb,ccc"}));
  EXPECT_EQ(CommaFieldOf("a,bb,ccc", 1), (FieldAndLine{"bb", "a,bb,ccc"}));
  EXPECT_EQ(CommaFieldOf("a,bb,ccc", 2), (FieldAndLine{"ccc", "a,bb,ccc"}));
}

TEST(GetCommaField, GivesNothingOutsideTheFields) {
  EXPECT_EQ(CommaFieldOf("a,bb", 2), (FieldAndLine{"", "a,bb"}));
  EXPECT_EQ(CommaFieldOf("a,bb", 32767), (FieldAndLine{"", "a,bb"}));
  EXPECT_EQ(CommaFieldOf("a,bb", -1), (FieldAndLine{"", "a,bb"}));
  EXPECT_EQ(CommaFieldOf("", 0), (FieldAndLine{"", ""}));
}

TEST(GetCommaField, TakesEveryBlankAndTabOutOfTheLine) {
  EXPECT_EQ(CommaFieldOf(" \t a b\tc , \t d\t", 0), (FieldAndLine{"abc", "abc,d"}));
  EXPECT_EQ(CommaFieldOf(" \t ", 0), (FieldAndLine{"", ""}));
}

TEST(GetCommaField, LeavesAllOtherBytesAlone) {
  EXPECT_EQ(CommaFieldOf("\xA0\v\n\x01,\xFC\"'", 0),
            (FieldAndLine{"\xA0\v\n\x01", "\xA0\v\n\x01,\xFC\"'"}));
}

TEST(GetCommaField, TakesOneCommaAtTheEndAwayWithEachCall) {
  std::string line = "a,b,,,";
  EXPECT_EQ(GetCommaField(line, 1), "b");
  EXPECT_EQ(line, "a,b,,");
  EXPECT_EQ(GetCommaField(line, 1), "b");
  EXPECT_EQ(line, "a,b,");
  EXPECT_EQ(GetCommaField(line, 1), "b");
  EXPECT_EQ(line, "a,b");
  EXPECT_EQ(GetCommaField(line, 1), "b");
  EXPECT_EQ(line, "a,b");
}

TEST(GetCommaField, TakesACommaWithBlanksBehindItToo) {
  EXPECT_EQ(CommaFieldOf("a, b, \t ", 1), (FieldAndLine{"b", "a,b"}));
  EXPECT_EQ(CommaFieldOf("a, , ", 1), (FieldAndLine{"", "a,"}));
}

TEST(GetCommaField, AlsoTakesTheCommaForAnIndexOutsideTheFields) {
  EXPECT_EQ(CommaFieldOf("a,b,", -1), (FieldAndLine{"", "a,b"}));
  EXPECT_EQ(CommaFieldOf("a,b,", 9), (FieldAndLine{"", "a,b"}));
}

TEST(GetCommaField, KeepsEmptyFieldsInFrontAndBetween) {
  EXPECT_EQ(CommaFieldOf(",,b", 0), (FieldAndLine{"", ",,b"}));
  EXPECT_EQ(CommaFieldOf(",,b", 1), (FieldAndLine{"", ",,b"}));
  EXPECT_EQ(CommaFieldOf(",,b", 2), (FieldAndLine{"b", ",,b"}));
}

TEST(CountCommaFields, CountsOneMoreThanThereAreCommas) {
  std::string line = "a,b,c";
  EXPECT_EQ(CountCommaFields(line), 3);
  EXPECT_EQ(line, "a,b,c");
}

TEST(CountCommaFields, AnEmptyLineHasNoField) {
  std::string line;
  EXPECT_EQ(CountCommaFields(line), 0);
  line = " \t  \t";
  EXPECT_EQ(CountCommaFields(line), 0);
  EXPECT_EQ(line, "");
}

TEST(CountCommaFields, ACommaAtTheEndIsAFurtherEmptyField) {
  std::string line = " a ,\tb , ";
  EXPECT_EQ(CountCommaFields(line), 3);
  EXPECT_EQ(line, "a,b,");
  line = ",";
  EXPECT_EQ(CountCommaFields(line), 2);
  EXPECT_EQ(line, ",");
}

TEST(CountCommaFields, CountsAsFarAsSixteenBitsGo) {
  std::string line(32766, ',');
  EXPECT_EQ(CountCommaFields(line), 32767);
  line += ',';
  EXPECT_EQ(NumberThrownBy([&] { CountCommaFields(line); }), kOverflow);
}

// The counts before and after each of the thirteen calls that a record of eleven fields takes.
std::vector<int> CountsAroundCalls(std::string line, int calls) {
  std::vector<int> counts = {CountCommaFields(line)};
  for (int call = 0; call < calls; ++call) {
    GetCommaField(line, 0);
    counts.push_back(CountCommaFields(line));
  }
  return counts;
}

TEST(Counts, TenFieldsAndACommaAreElevenOnlyAtFirst) {
  EXPECT_EQ(CountsAroundCalls("0,1,2,3,4,5,6,7,8,9,", 2), (std::vector{11, 10, 10}));
}

TEST(Counts, ElevenFieldsAndACommaAreTwelveOnlyAtFirst) {
  EXPECT_EQ(CountsAroundCalls("0,1,2,3,4,5,6,7,8,9,10,", 2), (std::vector{12, 11, 11}));
}

TEST(Counts, ARunOfCommasShrinksByOneWithEachCall) {
  EXPECT_EQ(CountsAroundCalls("0,1,,,,", 5), (std::vector{6, 5, 4, 3, 2, 2}));
  EXPECT_EQ(CountsAroundCalls(",,,", 4), (std::vector{4, 3, 2, 0, 0}));
}

TEST(Counts, ARunOfTwelveCommasIsGoneAfterTwelveCalls) {
  const std::string twelve(12, ',');
  EXPECT_EQ(CountsAroundCalls("0" + twelve, 12).back(), 1);
  EXPECT_EQ(CountsAroundCalls("0" + twelve + ",", 12).back(), 2);
}

TEST(GetSpaceField, GivesTheFieldsFromNought) {
  EXPECT_EQ(SpaceFieldOf("# 7 navy blue", 0), (FieldAndLine{"#", "# 7 navy blue"}));
  EXPECT_EQ(SpaceFieldOf("# 7 navy blue", 2), (FieldAndLine{"navy", "# 7 navy blue"}));
  EXPECT_EQ(SpaceFieldOf("# 7 navy blue", 3), (FieldAndLine{"blue", "# 7 navy blue"}));
}

TEST(GetSpaceField, GivesNothingOutsideTheFields) {
  EXPECT_EQ(SpaceFieldOf("# 7", 2), (FieldAndLine{"", "# 7"}));
  EXPECT_EQ(SpaceFieldOf("# 7", -1), (FieldAndLine{"", "# 7"}));
  EXPECT_EQ(SpaceFieldOf("", 0), (FieldAndLine{"", ""}));
  EXPECT_EQ(SpaceFieldOf(" \t ", 0), (FieldAndLine{"", ""}));
}

TEST(GetSpaceField, MakesRunsOfBlanksAndTabsOneBlankInTheLine) {
  EXPECT_EQ(SpaceFieldOf("  #\t7 \t navy  ", 2), (FieldAndLine{"navy", "# 7 navy"}));
  EXPECT_EQ(SpaceFieldOf("\t#\t\t7\t", 1), (FieldAndLine{"7", "# 7"}));
}

TEST(GetSpaceField, CommasAreOrdinaryCharacters) {
  EXPECT_EQ(SpaceFieldOf("a,b c,", 1), (FieldAndLine{"c,", "a,b c,"}));
}

TEST(CommaLine, CountsAsFarAsSixteenBitsGo) {
  EXPECT_EQ(CommaLine(std::string(32766, ',')).Count(), 32767);
  const CommaLine tooLong(std::string(32767, ','));
  EXPECT_EQ(NumberThrownBy([&] { tooLong.Count(); }), kOverflow);
}

TEST(CommaLine, FailsAtAnyNumberOfFieldsBeyondThat) {
  CommaLine line("a,b," + std::string(200'000, ','));
  EXPECT_EQ(NumberThrownBy([&] { line.Count(); }), kOverflow);
  EXPECT_EQ(line.Field(1), "b");
  EXPECT_EQ(NumberThrownBy([&] { line.Count(); }), kOverflow);
}

// A step on a line: -2 counts, everything else takes the field of that index.
constexpr int kCount = -2;

RC_GTEST_PROP(CommaLine, GivesWhatTheFunctionsGiveInAnyOrderOfCalls, ()) {
  const auto text =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab,,,, \t\xFC")));
  const auto steps = *rc::gen::container<std::vector<int>>(rc::gen::inRange(kCount, 9));
  std::string line = text;
  CommaLine commaLine(text);
  for (const int step : steps) {
    if (step == kCount) {
      RC_ASSERT(commaLine.Count() == CountCommaFields(line));
    } else {
      RC_ASSERT(commaLine.Field(step) == GetCommaField(line, step));
    }
  }
}

}  // namespace
}  // namespace wheelwright::testing
