#include "gamefiles/HandlingLine.h"
#include "support/TestSession.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<ReportList::Row>;

// What a token of a line that breaks no rule of its place must not be.
std::string TokenThatBreaks(Rule rule) { return rule == Rule::Word ? "17.5" : "heavy"; }

TEST(HandlingLineTest, ATabBecomesOneBlank) {
  EXPECT_EQ(CleanedLine("BUS\t5500.0\t\t2.6"), "BUS 5500.0 2.6");
}

TEST(HandlingLineTest, EveryRunOfBlanksShrinksToOne) {
  EXPECT_EQ(CleanedLine("BUS  5500.0     2.6 \t \t 9.1"), "BUS 5500.0 2.6 9.1");
}

TEST(HandlingLineTest, BlanksAndTabsAreCutOffBothEnds) {
  EXPECT_EQ(CleanedLine(" \t  BUS 5500.0\t \t"), "BUS 5500.0");
}

TEST(HandlingLineTest, OtherControlCharactersAndHardBlanksAreNoSeparators) {
  EXPECT_EQ(CleanedLine("\nBUS\v5500.0\xA0 2.6\f"), "\nBUS\v5500.0\xA0 2.6\f");
}

TEST(HandlingLineTest, ALineOfBlanksCleansToNothing) {
  EXPECT_EQ(CleanedLine(" \t \t "), "");
  EXPECT_EQ(CleanedLine(""), "");
}

TEST(HandlingLineTest, CountingCleansTheCallersLine) {
  std::string line = "\tBUS  5500.0\t2.6  ";
  EXPECT_EQ(CountSpaceFields(line), 3);
  EXPECT_EQ(line, "BUS 5500.0 2.6");
}

TEST(HandlingLineTest, ParsingCleansTheCallersLine) {
  TestSession test;
  std::string line = "  BUS\t\t5500.0 ";
  EXPECT_EQ(ParseHandlingToken(test.session, line, 1), "5500.0");
  EXPECT_EQ(line, "BUS 5500.0");
}

TEST(HandlingLineTest, AnEmptyLineHasNoTokens) {
  std::string empty;
  std::string blank = " \t ";
  EXPECT_EQ(CountSpaceFields(empty), 0);
  EXPECT_EQ(CountSpaceFields(blank), 0);
  EXPECT_EQ(blank, "");
}

TEST(HandlingLineTest, TokensBehindTheLastFieldAreCountedToo) {
  std::string line = VehicleLineOf("BUS") + " 7 8";
  EXPECT_EQ(CountSpaceFields(line), 35);
}

TEST(HandlingLineTest, TheCountIsA16BitNumber) {
  std::string greatest;
  for (int i = 0; i < 32767; ++i) greatest += "1 ";
  EXPECT_EQ(CountSpaceFields(greatest), 32767);
  std::string tooMany = greatest + " 1";
  EXPECT_EQ(NumberThrownBy([&] { CountSpaceFields(tooMany); }), 6);
}

TEST(HandlingLineTest, EveryTokenHasItsDefaultWhenTheLineIsTooShort) {
  TestSession test;
  for (int index = 0; index < 33; ++index) {
    std::string line;
    EXPECT_EQ(ParseHandlingToken(test.session, line, index),
              kTokenRules[static_cast<std::size_t>(index)].missing)
        << "token " << index;
  }
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(HandlingLineTest, ADefaultIsNotChecked) {
  TestSession test;
  std::string line = "BUS 5500.0";
  EXPECT_EQ(ParseHandlingToken(test.session, line, 2), "0.0");
  EXPECT_EQ(ParseHandlingToken(test.session, line, 16), "P");
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
}

TEST(HandlingLineTest, GoodTokensComeAsTheyStandWithoutARow) {
  TestSession test;
  std::string line = VehicleLineOf("BUS", "5500.00");
  Tokens found;
  for (int index = 0; index < 33; ++index) {
    found.push_back(ParseHandlingToken(test.session, line, index));
  }
  EXPECT_EQ(found, TokensWith("BUS", 1, "5500.00"));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
}

TEST(HandlingLineTest, EveryCheckedTokenGivesARowWithTheCaptionOfItsLabel) {
  for (std::size_t index = 0; index < 33; ++index) {
    const TokenRule& rule = kTokenRules[index];
    if (rule.rule == Rule::Anything) continue;
    TestSession test;
    const std::string bad = TokenThatBreaks(rule.rule);
    const Tokens tokens = TokensWith("BUS", index, bad);
    std::string line = Joined(tokens);
    EXPECT_EQ(ParseHandlingToken(test.session, line, static_cast<int>(index)), bad);
    const std::string caption = rule.label == nullptr ? "" : (test.main.*rule.label).Caption();
    const Rows expected = {{tokens[0], caption, rule.rule == Rule::Word ? "E104" : "E105"}};
    EXPECT_EQ(test.error.lstErrors.Rows(), expected) << "token " << index;
    EXPECT_TRUE(test.error.IsVisible()) << "token " << index;
  }
}

TEST(HandlingLineTest, TheAntiDiveRowHasNoCaption) {
  TestSession test;
  std::string line = Joined(TokensWith("BUS", 29, "nose"));
  EXPECT_EQ(ParseHandlingToken(test.session, line, 29), "nose");
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", "", "E105"}}));
}

TEST(HandlingLineTest, DriveTypeAndFlagsTakeNumbersAndWords) {
  TestSession test;
  for (const char* token : {"4", "heavy", "-1.5e3", "XYZ"}) {
    for (const int index : {15, 30}) {
      std::string line = Joined(TokensWith("BUS", static_cast<std::size_t>(index), token));
      EXPECT_EQ(ParseHandlingToken(test.session, line, index), token);
    }
  }
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
}

TEST(HandlingLineTest, TheCaptionIsTheOneOfThisMoment) {
  TestSession test;
  test.main.lblGewicht.SetCaption("Mass & more");
  std::string line = "BUS heavy";
  ParseHandlingToken(test.session, line, 1);
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"BUS", "Mass & more", "E105"}}));
}

TEST(HandlingLineTest, OnlyTheAskedTokenIsChecked) {
  TestSession test;
  std::string line = "4711 heavy wide";
  EXPECT_EQ(ParseHandlingToken(test.session, line, 2), "wide");
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"4711", test.main.lblBreite.Caption(), "E105"}}));
}

TEST(HandlingLineTest, ABadNameIsNamedAsItStands) {
  TestSession test;
  std::string line = "\t-47,5 1500.0";
  EXPECT_EQ(ParseHandlingToken(test.session, line, 0), "-47,5");
  EXPECT_EQ(test.error.lstErrors.Rows(),
            (Rows{{"-47,5", test.main.lblAutoname.Caption(), "E104"}}));
}

TEST(HandlingLineTest, EachFormOfNumberPassesTheCheck) {
  TestSession test;
  for (const char* number : {"1", "-1", "+1", ".5", "5.", "0,5", "1e3", "1D-3"}) {
    std::string line = std::string("BUS ") + number;
    EXPECT_EQ(ParseHandlingToken(test.session, line, 1), number);
  }
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
}

TEST(HandlingLineTest, WhatOnlyLooksLikeANumberFailsTheCheck) {
  TestSession test;
  Rows expected;
  for (const char* text : {"-", ".", "1.9.1", "1e", "19500,-", "0x10", "1\xA0"}) {
    std::string line = std::string("BUS ") + text;
    EXPECT_EQ(ParseHandlingToken(test.session, line, 1), text);
    expected.push_back({"BUS", test.main.lblGewicht.Caption(), "E105"});
  }
  EXPECT_EQ(test.error.lstErrors.Rows(), expected);
}

TEST(HandlingLineTest, AVehicleWithoutTokensIsNamedByTheDefaultWithoutACheck) {
  TestSession test;
  Car car;
  HandlingTokens("").Fill(test.session, car);
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"0.0", "", "E102: 0 E103"}}));
  Tokens defaults;
  for (const TokenRule& rule : kTokenRules) defaults.emplace_back(rule.missing);
  EXPECT_EQ(TokensOf(car), defaults);
}

TEST(HandlingLineTest, FillingARecordReportsTheCountBeforeTheTokens) {
  TestSession test;
  Car car;
  HandlingTokens("4711\theavy").Fill(test.session, car);
  EXPECT_EQ(test.error.lstErrors.Rows(), (Rows{{"4711", "", "E102: 2 E103"},
                                               {"4711", test.main.lblAutoname.Caption(), "E104"},
                                               {"4711", test.main.lblGewicht.Caption(), "E105"}}));
}

TEST(HandlingLineTest, FillingARecordPutsTokenIIntoSlotIPlusOne) {
  TestSession test;
  Tokens tokens;
  for (int i = 0; i < 33; ++i) tokens.push_back("t" + std::to_string(i));
  Car car;
  HandlingTokens(Joined(tokens, "\t ")).Fill(test.session, car);
  EXPECT_EQ(TokensOf(car), tokens);
}

TEST(HandlingLineTest, APlaceThatIsNoFieldIsFailure9) {
  TestSession test;
  std::string line = VehicleLineOf("BUS") + " 7 8";
  EXPECT_EQ(NumberThrownBy([&] { ParseHandlingToken(test.session, line, -1); }), 9);
  EXPECT_EQ(NumberThrownBy([&] { ParseHandlingToken(test.session, line, 33); }), 9);
  EXPECT_EQ(NumberThrownBy([&] { ParseHandlingToken(test.session, line, 34); }), 9);
}

TEST(HandlingLineTest, BlanksBehindTheEndOfALineAreNotItsOwn) {
  const std::string_view text = "BUS  7 8  9";
  EXPECT_EQ(HandlingTokens(text.substr(0, 4)).Count(), 1U);
  EXPECT_EQ(HandlingTokens(text.substr(0, 6)).Count(), 2U);
}

}  // namespace
}  // namespace wheelwright::testing
