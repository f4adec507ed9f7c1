// One vehicle of a handling file or an export file: 33 tokens, separated by blanks and tabs.
//
//   TAXI            1450.0 1.9 4.5 1.5  0.0 0.1 -0.1  75 ...  12000 ... 0000003 0 1
#pragma once

#include "core/Records.h"
#include "formats/Tokenisers.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

enum class TokenCheck { None, MustBeNumeric, MustNotBeNumeric };

struct HandlingToken {
  const char* name;  // as the record calls it
  FieldText Car::*value;
  const char* missing;  // what a line that is too short gives
  TokenCheck check;
};

inline constexpr int kTokensOfAVehicle = 33;
// In the order of the line.
extern const std::array<HandlingToken, kTokensOfAVehicle> kHandlingTokens;

// Something wrong with a line. It stops no reading.
struct LineProblem {
  std::string vehicle;              // token 0
  FieldText Car::*field = nullptr;  // whose token fails its check; null: the line hasn't 33 tokens
  TokenCheck failed = TokenCheck::None;
  int tokens = 0;  // how many the line has

  bool operator==(const LineProblem&) const = default;
};
using LineProblems = std::vector<LineProblem>;

// The line's token at the index, after the check that belongs to it: a bad token adds a problem and
// is given all the same. A line that is too short gives the default of the token, without a check.
std::string_view ParseHandlingToken(const SpaceLine& line, int index, LineProblems& problems);

// Gives all tokens of the line to the record's slots, in order. If there aren't 33, that is the
// first problem. Failure 6 past 32,767 tokens.
void ReadVehicleLine(const SpaceLine& line, Car& car, LineProblems& problems);

// Appends the 33 texts of the vehicle joined by one blank each and a line end: the name padded
// behind to 14 characters, the mass padded in front to 7, the monetary value padded in front to 6.
// Longer texts are written whole.
void AddVehicleLine(std::string& out, const Car& car);

}  // namespace wheelwright
