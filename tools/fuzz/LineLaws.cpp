#include "fuzz/LineLaws.h"

#include "core/Numbers.h"
#include "fuzz/Law.h"
#include "gamefiles/CommaFields.h"
#include "gamefiles/HandlingLine.h"
#include "gamefiles/LoadProblems.h"
#include "support/DefinitionReference.h"
#include "support/HandlingReference.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <cstddef>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::Rule;
using testing::TestSession;

// "0" takes field 0; the characters in front of it take fields that can't be.
int IndexOf(char call) { return call - '0'; }

std::string FieldOf(const std::vector<std::string>& fields, int index) {
  const bool inside = index >= 0 && static_cast<std::size_t>(index) < fields.size();
  return inside ? fields[static_cast<std::size_t>(index)] : "";
}

int CountPlainly(const std::string& line) {
  return static_cast<int>(testing::SplitAtCommas(line).size());
}

void RequireSameCount(std::string& line, const CommaLine& quick, std::string& plain) {
  plain = testing::WithoutBlanksAndTabs(plain);
  Require(CountCommaFields(line) == CountPlainly(plain), "fields are counted between commas");
  Require(quick.Count() == CountPlainly(plain), "a line taken apart once counts the same");
}

void RequireSameField(std::string& line, CommaLine& quick, std::string& plain, int index) {
  std::string expected;
  testing::TakeCommaField(plain, 0);
  expected = FieldOf(testing::SplitAtCommas(plain), index);
  RequireSameText(GetCommaField(line, index), expected, "a field stands between its commas");
  RequireSameText(quick.Field(index), expected, "a line taken apart once gives the same field");
}

bool Passes(Rule rule, const std::string& token) {
  if (rule == Rule::Anything) return true;
  return IsNumeric(token) == (rule == Rule::Number);
}

void RequireToken(TestSession& test, std::string line, const testing::Tokens& tokens, int index) {
  const testing::TokenRule& rule = testing::kTokenRules[static_cast<std::size_t>(index)];
  const bool isThere = static_cast<std::size_t>(index) < tokens.size();
  const std::string expected = isThere ? FieldOf(tokens, index) : rule.missing;
  ClearLoadProblems(test.session);
  RequireSameText(ParseHandlingToken(test.session, line, index), expected,
                  "a token stands between its blanks");
  RequireSameText(line, testing::Joined(tokens), "a line is left with single blanks");
  const auto& problems = test.error.lstErrors.Rows();
  Require(problems.empty() == (!isThere || Passes(rule.rule, expected)),
          "a token that fails its check is a load problem");
  if (problems.empty()) return;
  const std::string caption = rule.label == nullptr ? "" : (test.main.*rule.label).Caption();
  const std::string text = rule.rule == Rule::Word ? "E104" : "E105";
  Require(problems == std::vector<ReportList::Row>{{tokens[0], caption, text}},
          "a load problem names the vehicle, the field and the fault");
}

}  // namespace

void RequireCommaLaws(const std::string& line, const std::string& calls) {
  std::string cleaned = line;
  std::string plain = line;
  CommaLine quick(line);
  for (const char call : calls) {
    if (call == 'n') {
      RequireSameCount(cleaned, quick, plain);
    } else {
      RequireSameField(cleaned, quick, plain, IndexOf(call));
    }
    RequireSameText(cleaned, plain, "each call leaves the line to the next one");
  }
}

void RequireSpaceLaws(const std::string& line, const std::string& calls) {
  const testing::Tokens tokens = testing::PlainTokens(line);
  const std::string expected = testing::Joined(tokens);
  RequireSameText(CleanedLine(line), expected, "a cleaned line has single blanks");
  std::string cleaned = line;
  for (const char call : calls) {
    if (call == 'n') {
      Require(CountSpaceFields(cleaned) == static_cast<int>(tokens.size()), "tokens are counted");
    } else {
      RequireSameText(GetSpaceField(cleaned, IndexOf(call)), FieldOf(tokens, IndexOf(call)),
                      "a field stands between its blanks");
    }
    RequireSameText(cleaned, expected, "a call leaves the line with single blanks");
  }
}

void RequireHandlingLaws(const std::string& line) {
  static TestSession test;
  const testing::Tokens tokens = testing::PlainTokens(line);
  for (int index = 0; index < kTokensOfAVehicle; ++index) RequireToken(test, line, tokens, index);
}

}  // namespace wheelwright::fuzz
