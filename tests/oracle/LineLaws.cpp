#include "core/Numbers.h"
#include "formats/HandlingLine.h"
#include "formats/Tokenisers.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/TextLaws.h"
#include "support/VehicleTokens.h"

#include <cstddef>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

// "0" takes field 0; the characters in front of it take fields that can't be.
int IndexOf(char call) { return call - '0'; }

std::string FieldOf(const std::vector<std::string>& fields, int index) {
  const bool inside = index >= 0 && static_cast<std::size_t>(index) < fields.size();
  return inside ? fields[static_cast<std::size_t>(index)] : "";
}

void RequireSameCount(const CommaLine& line, std::string& plain) {
  plain = WithoutBlanksAndTabs(plain);
  Require(line.CountCommaFields() == static_cast<int>(SplitAtCommas(plain).size()),
          "fields are counted between commas");
}

void RequireSameField(CommaLine& line, std::string& plain, int index) {
  TakeCommaField(plain, 0);
  RequireSameText(line.GetCommaField(index), FieldOf(SplitAtCommas(plain), index),
                  "a field stands between its commas");
}

bool Passes(TokenCheck check, const std::string& token) {
  if (check == TokenCheck::None) return true;
  return IsNumeric(token) == (check == TokenCheck::MustBeNumeric);
}

void RequireToken(const SpaceLine& line, const Tokens& tokens, int index) {
  const TokenRule& rule = kTokenRules[static_cast<std::size_t>(index)];
  const bool isThere = static_cast<std::size_t>(index) < tokens.size();
  const std::string expected = isThere ? FieldOf(tokens, index) : rule.missing;
  LineProblems problems;
  RequireSameText(ParseHandlingToken(line, index, problems), expected, "a token stands between its blanks");
  Require(problems.empty() == (!isThere || Passes(rule.check, expected)),
          "a token that fails its check is a problem");
  if (problems.empty()) return;
  Require(problems == LineProblems{BadToken(tokens[0], index)},
          "a problem names the vehicle, the field and the fault");
}

}  // namespace

void RequireCommaLaws(const std::string& text, const std::string& calls) {
  std::string plain = text;
  CommaLine line(text);
  for (const char call : calls) {
    if (call == 'n') {
      RequireSameCount(line, plain);
    } else {
      RequireSameField(line, plain, IndexOf(call));
    }
  }
}

void RequireSpaceLaws(const std::string& text) {
  const Tokens tokens = PlainTokens(text);
  RequireSameText(CleanedLine(text), Joined(tokens), "a cleaned line has single blanks");
  const SpaceLine line(text);
  Require(line.CountSpaceFields() == static_cast<int>(tokens.size()), "tokens are counted");
  for (int index = 0; index < SpaceLine::kFieldsAtHand; ++index) {
    RequireSameText(line.GetSpaceField(index), FieldOf(tokens, index), "a field stands between its blanks");
  }
}

void RequireTokenLaws(const std::string& line) {
  const Tokens tokens = PlainTokens(line);
  for (int index = 0; index < kTokensOfAVehicle; ++index) RequireToken(SpaceLine(line), tokens, index);
}

}  // namespace wheelwright::testing
