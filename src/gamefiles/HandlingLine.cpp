#include "gamefiles/HandlingLine.h"

#include "core/Numbers.h"
#include "gamefiles/LoadProblems.h"
#include "screen/HandlingFields.h"

namespace wheelwright {
namespace {

bool IsSeparator(char byte) { return byte == ' ' || byte == '\t'; }

const HandlingField& FieldOf(int index) {
  if (index < 0 || index >= kTokensOfAVehicle) throw Failure(FailureNumber::SubscriptOutOfRange);
  return kHandlingFields[static_cast<std::size_t>(index)];
}

bool PassesCheck(TokenCheck check, std::string_view token) {
  switch (check) {
    case TokenCheck::MustBeNumeric:
      return IsNumeric(token);
    case TokenCheck::MustNotBeNumeric:
      return !IsNumeric(token);
    case TokenCheck::None:
      break;
  }
  return true;
}

}  // namespace

std::string CleanedLine(std::string_view line) {
  std::string cleaned;
  cleaned.reserve(line.size());
  for (const char byte : line) {
    if (!IsSeparator(byte)) {
      cleaned += byte;
    } else if (!cleaned.empty() && cleaned.back() != ' ') {
      cleaned += ' ';
    }
  }
  if (!cleaned.empty() && cleaned.back() == ' ') cleaned.pop_back();
  return cleaned;
}

std::int16_t CountSpaceFields(std::string& line) {
  line = CleanedLine(line);
  return Checked16(HandlingTokens(line).Count());
}

std::string ParseHandlingToken(Session& session, std::string& line, int index) {
  line = CleanedLine(line);
  return std::string(HandlingTokens(line).Checked(session, index));
}

HandlingTokens::HandlingTokens(std::string_view line) {
  const char* at = line.data();
  const char* const end = at + line.size();
  for (;;) {
    while (at != end && IsSeparator(*at)) ++at;
    if (at == end) return;
    const char* const begin = at;
    while (at != end && !IsSeparator(*at)) ++at;
    if (count_ < tokens_.size()) {
      tokens_[count_] = std::string_view(begin, static_cast<std::size_t>(at - begin));
    }
    ++count_;
  }
}

std::string HandlingTokens::Vehicle() const {
  return count_ == 0 ? FieldOf(0).missing : std::string(tokens_.front());
}

std::string_view HandlingTokens::Checked(Session& session, int index) const {
  const HandlingField& field = FieldOf(index);
  const auto place = static_cast<std::size_t>(index);
  if (place >= count_) return field.missing;
  const std::string_view token = tokens_[place];
  if (!PassesCheck(field.check, token)) {
    const int problem = field.check == TokenCheck::MustNotBeNumeric ? 104 : 105;
    AddLoadProblem(session, Vehicle(),
                   field.namedInProblems ? (session.main.*field.label).Caption() : "",
                   session.vars.Lang[static_cast<std::size_t>(problem)]);
  }
  return token;
}

void HandlingTokens::Fill(Session& session, Car& car) const {
  if (const int count = Checked16(Count()); count != kTokensOfAVehicle) {
    AddTokenCountProblem(session, Vehicle(), count);
  }
  for (int index = 0; index < kTokensOfAVehicle; ++index) {
    car.*FieldOf(index).value = Checked(session, index);
  }
}

}  // namespace wheelwright
