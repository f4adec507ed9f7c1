#include "gamefiles/HandlingLine.h"

#include "core/Numbers.h"
#include "gamefiles/LoadProblems.h"
#include "screen/HandlingFields.h"

namespace wheelwright {
namespace {

constexpr std::string_view kSeparators = " \t";

const HandlingField& FieldOf(int index) { return kHandlingFields[static_cast<std::size_t>(index)]; }

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
    const bool separator = byte == ' ' || byte == '\t';
    if (!separator) {
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
  return HandlingTokens(line).Checked(session, index);
}

HandlingTokens::HandlingTokens(std::string_view line) {
  for (std::size_t begin = line.find_first_not_of(kSeparators); begin != std::string_view::npos;) {
    const std::size_t end = line.find_first_of(kSeparators, begin);
    if (count_ < tokens_.size()) tokens_[count_] = line.substr(begin, end - begin);
    ++count_;
    begin = line.find_first_not_of(kSeparators, end);
  }
}

std::string HandlingTokens::Vehicle() const {
  return count_ == 0 ? FieldOf(0).missing : std::string(tokens_.front());
}

std::string HandlingTokens::Checked(Session& session, int index) const {
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
  return std::string(token);
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
