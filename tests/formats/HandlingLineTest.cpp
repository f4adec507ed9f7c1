#include "formats/HandlingLine.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

// What a token of a line that breaks no rule of its place must not be.
std::string TokenThatBreaks(TokenCheck check) {
  return check == TokenCheck::MustNotBeNumeric ? "17.5" : "heavy";
}

// A token and the problems with it.
struct Parsed {
  Parsed(const std::string& line, int index) : token(ParseHandlingToken(SpaceLine(line), index, problems)) {}

  LineProblems problems;
  std::string token;
};

struct FilledCar {
  explicit FilledCar(const std::string& line) { ReadVehicleLine(SpaceLine(line), car, problems); }

  Car car;
  LineProblems problems;
};

TEST(HandlingLineTest, EachTokenHasItsNameSlotDefaultAndCheck) {
  Tokens numbers;
  for (int i = 0; i < kTokensOfAVehicle; ++i) numbers.push_back(std::to_string(i));
  const Car car = CarOf(numbers);
  for (std::size_t i = 0; i < kHandlingTokens.size(); ++i) {
    EXPECT_EQ(car.*kHandlingTokens[i].value, numbers[i]) << kHandlingTokens[i].name;
    EXPECT_STREQ(kHandlingTokens[i].missing, kTokenRules[i].missing) << kHandlingTokens[i].name;
    EXPECT_EQ(kHandlingTokens[i].check, kTokenRules[i].check) << kHandlingTokens[i].name;
  }
}

TEST(HandlingLineTest, EveryTokenHasItsDefaultWithoutACheckWhenTheLineIsTooShort) {
  for (int index = 0; index < kTokensOfAVehicle; ++index) {
    const Parsed parsed("", index);
    EXPECT_EQ(parsed.token, kTokenRules[static_cast<std::size_t>(index)].missing) << index;
    EXPECT_EQ(parsed.problems, LineProblems{}) << index;
  }
}

TEST(HandlingLineTest, GoodTokensComeAsTheyStandWithoutAProblem) {
  const FilledCar filled(VehicleLineOf("BUS", "5500.00"));
  EXPECT_EQ(TokensOf(filled.car), TokensWith("BUS", 1, "5500.00"));
  EXPECT_EQ(filled.problems, LineProblems{});
}

TEST(HandlingLineTest, EveryCheckedTokenGivesAProblemAndComesAllTheSame) {
  for (int index = 0; index < kTokensOfAVehicle; ++index) {
    const TokenRule& rule = kTokenRules[static_cast<std::size_t>(index)];
    if (rule.check == TokenCheck::None) continue;
    const std::string bad = TokenThatBreaks(rule.check);
    const Tokens tokens = TokensWith("BUS", static_cast<std::size_t>(index), bad);
    const Parsed parsed(Joined(tokens), index);
    EXPECT_EQ(parsed.token, bad);
    EXPECT_EQ(parsed.problems, LineProblems{BadToken(tokens[0], index)}) << "token " << index;
  }
}

TEST(HandlingLineTest, DriveTypeAndFlagsTakeNumbersAndWords) {
  for (const char* token : {"4", "heavy", "-1.5e3", "XYZ"}) {
    for (const int index : {15, 30}) {
      const Parsed parsed(Joined(TokensWith("BUS", static_cast<std::size_t>(index), token)), index);
      EXPECT_EQ(parsed.token, token);
      EXPECT_EQ(parsed.problems, LineProblems{});
    }
  }
}

TEST(HandlingLineTest, OnlyTheAskedTokenIsChecked) {
  const Parsed parsed("4711 heavy wide", 2);
  EXPECT_EQ(parsed.token, "wide");
  EXPECT_EQ(parsed.problems, LineProblems{BadToken("4711", 2)});
}

TEST(HandlingLineTest, ABadNameIsNamedAsItStands) {
  const Parsed parsed("\t-47,5 1500.0", 0);
  EXPECT_EQ(parsed.token, "-47,5");
  EXPECT_EQ(parsed.problems, LineProblems{BadToken("-47,5", 0)});
}

TEST(HandlingLineTest, EachFormOfNumberPassesTheCheckAndNothingElse) {
  for (const char* number : {"1", "-1", "+1", ".5", "5.", "0,5", "1e3", "1D-3"}) {
    EXPECT_EQ(Parsed(std::string("BUS ") + number, 1).problems, LineProblems{}) << number;
  }
  for (const char* text : {"-", ".", "1.9.1", "1e", "19500,-", "0x10", "1\xA0"}) {
    EXPECT_EQ(Parsed(std::string("BUS ") + text, 1).problems, LineProblems{BadToken("BUS", 1)}) << text;
  }
}

TEST(HandlingLineTest, AVehicleWithoutTokensIsNamedByTheDefaultWithoutACheck) {
  const FilledCar filled("");
  EXPECT_EQ(filled.problems, LineProblems{WrongCount("0.0", 0)});
  Tokens defaults;
  for (const TokenRule& rule : kTokenRules) defaults.emplace_back(rule.missing);
  EXPECT_EQ(TokensOf(filled.car), defaults);
}

TEST(HandlingLineTest, TheCountIsReportedBeforeTheTokens) {
  EXPECT_EQ(FilledCar("4711\theavy").problems,
            (LineProblems{WrongCount("4711", 2), BadToken("4711", 0), BadToken("4711", 1)}));
  EXPECT_EQ(FilledCar(VehicleLineOf("BUS") + " 7 8").problems, LineProblems{WrongCount("BUS", 35)});
}

TEST(HandlingLineTest, TokenIGoesIntoSlotIPlusOne) {
  Tokens tokens;
  for (int i = 0; i < 33; ++i) tokens.push_back("t" + std::to_string(i));
  EXPECT_EQ(TokensOf(FilledCar(Joined(tokens, "\t ")).car), tokens);
}

TEST(HandlingLineTest, ALineOfMoreTokensThanSixteenBitsCountIsAnOverflow) {
  std::string line;
  for (int i = 0; i < 32767; ++i) line += "1 ";
  EXPECT_EQ(FilledCar(line).problems.front(), WrongCount("1", 32767));
  EXPECT_EQ(NumberThrownBy([&] { FilledCar(line + "1"); }), 6);
}

}  // namespace
}  // namespace wheelwright::testing
