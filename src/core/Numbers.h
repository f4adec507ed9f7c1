// Numbers in texts, the same for every locale, and 16-bit arithmetic that never wraps.
#pragma once

#include "core/Failure.h"

#include <cstdint>
#include <string_view>

namespace wheelwright {

// The general number test: an optional sign, digits with at most one decimal separator (point or
// comma) and at least one digit, an optional exponent (e, E, d or D, an optional sign, digits).
// "12", "-0.5", ".5", "5.", "1,5", "2e-3" and "1D4" are numbers; "", "-", "e5", "1e" and " 1" are
// none.
bool IsNumeric(std::string_view text);

// The whole number nearest to a numeric text, halves to the even one; blanks at both ends are cut.
// Throws failure 13 for a text that is no number and failure 6 for one that 16 bits can't hold.
std::int16_t ToInteger16(std::string_view text);

// The value as a signed 16-bit integer; failure 6 if it doesn't fit.
template <class Wide>
std::int16_t Checked16(Wide value) {
  if (value > static_cast<Wide>(INT16_MAX)) throw Failure(FailureNumber::Overflow);
  if constexpr (static_cast<Wide>(-1) < Wide{}) {
    if (value < static_cast<Wide>(INT16_MIN)) throw Failure(FailureNumber::Overflow);
  }
  return static_cast<std::int16_t>(value);
}

// A counter of records, lines or positions. The step past 32,767 is failure 6.
class Counter16 {
 public:
  std::int16_t Value() const { return value_; }
  void Step() { value_ = Checked16(value_ + 1); }

 private:
  std::int16_t value_ = 0;
};

}  // namespace wheelwright
