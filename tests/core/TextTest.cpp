#include "core/CodePage.h"
#include "core/Text.h"
#include "support/Generators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

// Few letters, with capitals, an umlaut in both forms and what lies around the letters.
rc::Gen<std::string> FewLetters() { return TextOf("abAB[\xC4\xE4"); }

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

RC_GTEST_PROP(TextLaw, TheOrderIsThatOfTheFoldedBytes, ()) {
  const std::string left = *FewLetters();
  const std::string right = *FewLetters();
  const int order = CompareIgnoringCase(left, right);
  const int folded = FoldedCase(left).compare(FoldedCase(right));
  RC_ASSERT((order < 0) == (folded < 0));
  RC_ASSERT((order > 0) == (folded > 0));
  RC_ASSERT(EqualsIgnoringCase(left, right) == (folded == 0));
}

RC_GTEST_PROP(TextLaw, TheOrderIsTotal, ()) {
  const std::string a = *AnyBytes();
  const std::string b = *FewLetters();
  const std::string c = *FewLetters();
  RC_ASSERT(CompareIgnoringCase(a, a) == 0);
  RC_ASSERT(CompareIgnoringCase(a, b) == -CompareIgnoringCase(b, a));
  const bool rises = CompareIgnoringCase(a, b) <= 0 && CompareIgnoringCase(b, c) <= 0;
  RC_ASSERT(!rises || CompareIgnoringCase(a, c) <= 0);
}

RC_GTEST_PROP(TextLaw, ASearchFindsWhatAPlainSearchFindsInTheFoldedText, ()) {
  const std::string text = *FewLetters();
  const std::string word = FoldedCase(*FewLetters());
  const auto from = static_cast<std::size_t>(*rc::gen::inRange(0, 12));
  RC_ASSERT(FindIgnoringCase(text, word, from) == FoldedCase(text).find(word, from));
}

RC_GTEST_PROP(TextLaw, AWordThatIsInTheTextIsFound, ()) {
  const std::string before = *TextOf("xy");
  const std::string word = *rc::gen::nonEmpty(FewLetters());
  const std::string text = before + word + *FewLetters();
  RC_ASSERT(FindIgnoringCase(text, FoldedCase(word)) == before.size());
}

}  // namespace
}  // namespace wheelwright::testing
