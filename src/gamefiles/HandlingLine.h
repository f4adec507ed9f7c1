// One line of a handling file: 33 tokens, separated by blanks and tabs.
//
//   TAXI   1450.0  1.9 4.5 1.5  0.0 0.1 -0.1  75 ...  0000003 0 1
#pragma once

#include "core/Records.h"
#include "screen/Session.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace wheelwright {

inline constexpr int kTokensOfAVehicle = 33;

// Brings a line into its single-blank form: every tab a blank, every run of blanks one blank, no
// blanks at the ends.
std::string CleanedLine(std::string_view line);

// Cleans the caller's line and counts its tokens, 0 for an empty line. Failure 6 past 32,767.
std::int16_t CountSpaceFields(std::string& line);

// Cleans the caller's line and gives its token at the index, after the check that belongs to it: a
// bad token adds a load problem and is given all the same. An index outside the tokens gives the
// default of its field, without a check.
std::string ParseHandlingToken(Session& session, std::string& line, int index);

// A line taken apart once for all its tokens. The line must outlive it.
class HandlingTokens {
 public:
  explicit HandlingTokens(std::string_view line);

  // All tokens of the line, also those behind the 33rd.
  std::size_t Count() const { return count_; }

  // Token 0, or its default for a line without tokens: how load problems call the vehicle.
  std::string Vehicle() const;

  // As ParseHandlingToken gives it.
  std::string_view Checked(Session& session, int index) const;

  // Adds the load problem if there aren't 33, then gives all tokens to the record's slots, in
  // order.
  void Fill(Session& session, Car& car) const;

 private:
  std::array<std::string_view, kTokensOfAVehicle> tokens_;
  std::size_t count_ = 0;
};

}  // namespace wheelwright
