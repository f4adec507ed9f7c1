#include "formats/HandlingLine.h"

#include "core/Numbers.h"
#include "formats/Lines.h"

namespace wheelwright {
namespace {

constexpr TokenCheck kAnything = TokenCheck::None;
constexpr TokenCheck kNumber = TokenCheck::MustBeNumeric;
constexpr TokenCheck kWord = TokenCheck::MustNotBeNumeric;

constexpr std::size_t kNameWidth = 14;
constexpr std::size_t kMassWidth = 7;
constexpr std::size_t kMonetaryValueWidth = 6;

bool PassesCheck(TokenCheck check, std::string_view token) {
  return check == kAnything || IsNumeric(token) == (check == kNumber);
}

// How problems call the vehicle.
std::string NameIn(const SpaceLine& line) {
  const std::string_view name = line.GetSpaceField(0);
  return name.empty() ? kHandlingTokens.front().missing : std::string(name);
}

void AddBlanks(std::string& out, std::size_t length, std::size_t width) {
  if (length < width) out.append(width - length, ' ');
}

}  // namespace

const std::array<HandlingToken, kTokensOfAVehicle> kHandlingTokens = {{
    {"CarName", &Car::CarName, "0.0", kWord},
    {"Mass", &Car::Mass, "0.0", kNumber},
    {"DimensionX", &Car::DimensionX, "0.0", kNumber},
    {"DimensionY", &Car::DimensionY, "0.0", kNumber},
    {"DimensionZ", &Car::DimensionZ, "0.0", kNumber},
    {"CenterOfMassX", &Car::CenterOfMassX, "0.0", kNumber},
    {"CenterOfMassY", &Car::CenterOfMassY, "0.0", kNumber},
    {"CenterOfMassZ", &Car::CenterOfMassZ, "0.0", kNumber},
    {"PercentSubmerged", &Car::PercentSubmerged, "0", kNumber},
    {"TractionMultiplier", &Car::TractionMultiplier, "0.0", kNumber},
    {"TractionLoss", &Car::TractionLoss, "0.0", kNumber},
    {"TractionBias", &Car::TractionBias, "0.0", kNumber},
    {"GearCount", &Car::GearCount, "0", kNumber},
    {"MaxVelocity", &Car::MaxVelocity, "0.0", kNumber},
    {"EngineAcceleration", &Car::EngineAcceleration, "0.0", kNumber},
    {"DriveType", &Car::DriveType, "F", kAnything},
    {"EngineType", &Car::EngineType, "P", kWord},
    {"BrakeDeceleration", &Car::BrakeDeceleration, "0.0", kNumber},
    {"BrakeBias", &Car::BrakeBias, "0.0", kNumber},
    {"ABS", &Car::ABS, "0", kNumber},
    {"SteeringLock", &Car::SteeringLock, "0.0", kNumber},
    {"SuspensionForceLevel", &Car::SuspensionForceLevel, "0.0", kNumber},
    {"SuspensionDampingLevel", &Car::SuspensionDampingLevel, "0.0", kNumber},
    {"SeatOffset", &Car::SeatOffset, "0.0", kNumber},
    {"CollisionDamageMultiplier", &Car::CollisionDamageMultiplier, "0.0", kNumber},
    {"MonetaryValue", &Car::MonetaryValue, "0", kNumber},
    {"suspension_upper_limit", &Car::suspension_upper_limit, "0.0", kNumber},
    {"suspension_lower_limit", &Car::suspension_lower_limit, "0.0", kNumber},
    {"SuspensionBias", &Car::SuspensionBias, "0.0", kNumber},
    {"SuspensionAntiDive", &Car::SuspensionAntiDive, "0.0", kNumber},
    {"ModelFlags", &Car::ModelFlags, "0000000", kAnything},
    {"FrontLights", &Car::FrontLights, "0", kNumber},
    {"RearLights", &Car::RearLights, "0", kNumber},
}};

std::string_view ParseHandlingToken(const SpaceLine& line, int index, LineProblems& problems) {
  const HandlingToken& rule = kHandlingTokens.at(static_cast<std::size_t>(index));
  const std::string_view token = line.GetSpaceField(index);
  if (token.empty()) return rule.missing;
  if (!PassesCheck(rule.check, token)) {
    problems.push_back({.vehicle = NameIn(line), .field = rule.value, .failed = rule.check});
  }
  return token;
}

void ReadVehicleLine(const SpaceLine& line, Car& car, LineProblems& problems) {
  if (const int count = line.CountSpaceFields(); count != kTokensOfAVehicle) {
    problems.push_back({.vehicle = NameIn(line), .tokens = count});
  }
  for (int index = 0; index < kTokensOfAVehicle; ++index) {
    const auto place = static_cast<std::size_t>(index);
    car.*kHandlingTokens[place].value = ParseHandlingToken(line, index, problems);
  }
}

void AddVehicleLine(std::string& out, const Car& car) {
  for (const HandlingToken& token : kHandlingTokens) {
    const std::string_view value = car.*token.value;
    if (token.value != &Car::CarName) out += ' ';
    if (token.value == &Car::Mass) AddBlanks(out, value.size(), kMassWidth);
    if (token.value == &Car::MonetaryValue) AddBlanks(out, value.size(), kMonetaryValueWidth);
    out += value;
    if (token.value == &Car::CarName) AddBlanks(out, value.size(), kNameWidth);
  }
  out += kLineEnd;
}

}  // namespace wheelwright
