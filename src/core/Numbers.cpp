#include "core/Numbers.h"

#include "core/Text.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace wheelwright {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// value = 0.digits * 10^point, negative or not; the digits have no leading zero.
struct Decimal {
  bool negative = false;
  std::string digits;
  std::int64_t point = 0;
};

class DecimalParser {
 public:
  explicit DecimalParser(std::string_view text) : rest_(text) {}

  std::optional<Decimal> Parse() {
    Decimal number;
    number.negative = TakeSign();
    if (!TakeMantissa(number)) return std::nullopt;
    if (!rest_.empty() && !TakeExponent(number)) return std::nullopt;
    if (!rest_.empty()) return std::nullopt;
    return number;
  }

 private:
  static constexpr std::int64_t kFarAway = 1'000'000'000'000;

  bool TakeSign() {
    if (rest_.empty() || (rest_.front() != '-' && rest_.front() != '+')) return false;
    const bool negative = rest_.front() == '-';
    rest_.remove_prefix(1);
    return negative;
  }

  bool TakeMantissa(Decimal& number) {
    bool anyDigit = false;
    bool separated = false;
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      const char c = rest_.front();
      if (IsDigit(c)) {
        anyDigit = true;
        const bool leadingZero = number.digits.empty() && c == '0';
        if (!leadingZero) number.digits += c;
        if (!separated && !leadingZero) ++number.point;
        if (separated && leadingZero) --number.point;
      } else if ((c == '.' || c == ',') && !separated) {
        separated = true;
      } else {
        break;
      }
    }
    return anyDigit;
  }

  bool TakeExponent(Decimal& number) {
    if (std::string_view("eEdD").find(rest_.front()) == std::string_view::npos) return false;
    rest_.remove_prefix(1);
    const bool negative = TakeSign();
    if (rest_.empty() || !IsDigit(rest_.front())) return false;
    std::int64_t exponent = 0;
    for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
      exponent = std::min(kFarAway, exponent * 10 + (rest_.front() - '0'));
    }
    number.point += negative ? -exponent : exponent;
    return true;
  }

  std::string_view rest_;
};

// Rounds the digits behind the point to the whole number, halves to the even one.
long RoundedHalfToEven(const Decimal& number) {
  const auto whole = static_cast<std::size_t>(std::max<std::int64_t>(0, number.point));
  long value = 0;
  for (std::size_t i = 0; i < whole; ++i) {
    value = value * 10 + (i < number.digits.size() ? number.digits[i] - '0' : 0);
  }
  if (number.point < 0 || whole >= number.digits.size()) return value;
  const std::string_view fraction = std::string_view(number.digits).substr(whole);
  const bool aboveHalf =
      fraction.front() > '5' ||
      (fraction.front() == '5' && fraction.find_first_not_of('0', 1) != std::string_view::npos);
  const bool half = fraction.front() == '5' && !aboveHalf;
  const bool odd = value % 2 != 0;
  return aboveHalf || (half && odd) ? value + 1 : value;
}

}  // namespace

bool IsNumeric(std::string_view text) { return DecimalParser(text).Parse().has_value(); }

std::int16_t ToInteger16(std::string_view text) {
  const std::optional<Decimal> number = DecimalParser(TrimBlanks(text)).Parse();
  if (!number) throw Failure(FailureNumber::TypeMismatch);
  if (number->digits.empty()) return 0;
  constexpr long kDigitsThatFit = 5;
  if (number->point > kDigitsThatFit) throw Failure(FailureNumber::Overflow);
  const long magnitude = RoundedHalfToEven(*number);
  return Checked16(number->negative ? -magnitude : magnitude);
}

}  // namespace wheelwright
