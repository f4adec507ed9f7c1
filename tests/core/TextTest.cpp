#include "core/CodePage.h"
#include "core/Text.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

TEST(TextTest, BlanksAreCutAtBothEndsOnly) {
  EXPECT_EQ(TrimBlanks("   a  b "), "a  b");
  EXPECT_EQ(TrimBlanks("ab"), "ab");
  EXPECT_EQ(TrimBlanks("    "), "");
  EXPECT_EQ(TrimBlanks(""), "");
}

TEST(TextTest, NothingButTheBlankIsCut) {
  EXPECT_EQ(TrimBlanks(" \t a \r\n"), "\t a \r\n");
  EXPECT_EQ(TrimBlanks("\xA0x\xA0"), "\xA0x\xA0");
}

TEST(TextTest, TextsBehindEachOtherTakeNoMoreRoomThanTheyNeed) {
  const std::string part(1000, 'x');
  EXPECT_EQ(Concatenated({part, " - ", part}), part + " - " + part);
  EXPECT_LT(Concatenated({part, " - ", part}).capacity(), 2 * part.size() + 100);
  EXPECT_EQ(Concatenated({}), "");
}

TEST(TextTest, FoldingTurnsAllCapitalsOfTheCodePageIntoSmallLetters) {
  EXPECT_EQ(FoldedCase(FromUnicode("Grün ÄÖÜ Šž [1]")), FromUnicode("grün äöü šž [1]"));
}

TEST(TextTest, AWordIsFoundInAnyCase) {
  EXPECT_EQ(FindIgnoringCase("; AUTHOR: me, author: you", "author:"), 2U);
  EXPECT_EQ(FindIgnoringCase(FromUnicode("für GRÜN"), FromUnicode("grün")), 4U);
  EXPECT_EQ(FindIgnoringCase("created", "createdx"), kNowhere);
  EXPECT_EQ(FindIgnoringCase("", "a"), kNowhere);
}

TEST(TextTest, ASearchBeginsAtItsStart) {
  EXPECT_EQ(FindIgnoringCase("abAB", "ab", 0), 0U);
  EXPECT_EQ(FindIgnoringCase("abAB", "ab", 1), 2U);
  EXPECT_EQ(FindIgnoringCase("abAB", "ab", 2), 2U);
  EXPECT_EQ(FindIgnoringCase("abAB", "ab", 3), kNowhere);
  EXPECT_EQ(FindIgnoringCase("abAB", "ab", 99), kNowhere);
}

TEST(TextTest, AnEmptyWordIsFoundAtOnce) {
  EXPECT_EQ(FindIgnoringCase("abc", "", 2), 2U);
  EXPECT_EQ(FindIgnoringCase("abc", "", 3), 3U);
  EXPECT_EQ(FindIgnoringCase("", ""), 0U);
  EXPECT_EQ(FindIgnoringCase("abc", "", 4), kNowhere);
}

TEST(TextTest, ATextHoldsAWordInAnyCaseFromTheStartOn) {
  EXPECT_TRUE(HoldsIgnoringCase(";The End", ";the end"));
  EXPECT_FALSE(HoldsIgnoringCase("; the end", ";the end"));
  EXPECT_FALSE(HoldsIgnoringCase(";The End", ";the end", 1));
}

TEST(TextTest, TextsAreEqualWhateverTheirCase) {
  EXPECT_TRUE(EqualsIgnoringCase(FromUnicode("BÄR.bmp"), FromUnicode("bär.BMP")));
  EXPECT_FALSE(EqualsIgnoringCase("bus", "buss"));
  EXPECT_FALSE(EqualsIgnoringCase("buss", "bus"));
  EXPECT_FALSE(EqualsIgnoringCase("bus", "bux"));
}

TEST(TextTest, TheOrderIsThatOfTheSmallLettersCodes) {
  EXPECT_LT(CompareIgnoringCase("Apple", "banana"), 0);
  EXPECT_GT(CompareIgnoringCase("banana", "Apple"), 0);
  EXPECT_EQ(CompareIgnoringCase("BANANA", "banana"), 0);
  EXPECT_LT(CompareIgnoringCase("_", "A"), 0) << "5F stands before 61, though behind 41";
  EXPECT_LT(CompareIgnoringCase("z", FromUnicode("Ä")), 0);
  EXPECT_LT(CompareIgnoringCase(FromUnicode("š"), FromUnicode("ß")), 0);
}

TEST(TextTest, AShorterTextStandsBeforeItsContinuations) {
  EXPECT_LT(CompareIgnoringCase("BUS", "busx"), 0);
  EXPECT_GT(CompareIgnoringCase("busx", "BUS"), 0);
  EXPECT_LT(CompareIgnoringCase("", "a"), 0);
  EXPECT_LT(CompareIgnoringCase("a", std::string("a\0", 2)), 0);
}

}  // namespace
}  // namespace wheelwright::testing
