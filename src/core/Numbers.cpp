#include "core/Numbers.h"

#include "core/Text.h"

#include <algorithm>
#include <optional>
#include <string>

namespace wheelwright {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSeparator(char c) { return c == '.' || c == ','; }

// The parts of a numeric text.
struct NumericForm {
  bool negative = false;
  std::string_view whole;     // the digits in front of the decimal separator
  std::string_view fraction;  // the digits behind it
  std::int64_t exponent = 0;  // cut to kFarAway on both sides
};

// More than any text in memory has digits.
constexpr std::int64_t kFarAway = 1'000'000'000'000;

std::string_view TakeDigits(std::string_view& rest) {
  std::size_t length = 0;
  while (length < rest.size() && IsDigit(rest[length])) ++length;
  const std::string_view digits = rest.substr(0, length);
  rest.remove_prefix(length);
  return digits;
}

// True for a minus sign.
bool TakeSign(std::string_view& rest) {
  if (rest.empty() || (rest.front() != '-' && rest.front() != '+')) return false;
  const bool negative = rest.front() == '-';
  rest.remove_prefix(1);
  return negative;
}

// The value of a few digits and nothing else, as which nearly all whole numbers come; nothing for
// every other text.
std::optional<std::int16_t> FewDigits(std::string_view text) {
  constexpr std::size_t kDigitsThatAlwaysFit = 4;
  if (text.empty() || text.size() > kDigitsThatAlwaysFit) return std::nullopt;
  int value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return static_cast<std::int16_t>(value);
}

// Nothing if the rest is no exponent.
std::optional<std::int64_t> TakeExponent(std::string_view& rest) {
  if (std::string_view("eEdD").find(rest.front()) == std::string_view::npos) return std::nullopt;
  rest.remove_prefix(1);
  const bool negative = TakeSign(rest);
  const std::string_view digits = TakeDigits(rest);
  if (digits.empty()) return std::nullopt;
  std::int64_t exponent = 0;
  for (const char digit : digits) exponent = std::min(kFarAway, exponent * 10 + (digit - '0'));
  return negative ? -exponent : exponent;
}

std::optional<NumericForm> Parse(std::string_view rest) {
  NumericForm form;
  form.negative = TakeSign(rest);
  form.whole = TakeDigits(rest);
  if (!rest.empty() && IsSeparator(rest.front())) {
    rest.remove_prefix(1);
    form.fraction = TakeDigits(rest);
  }
  if (form.whole.empty() && form.fraction.empty()) return std::nullopt;
  if (rest.empty()) return form;
  const std::optional<std::int64_t> exponent = TakeExponent(rest);
  if (!exponent || !rest.empty()) return std::nullopt;
  form.exponent = *exponent;
  return form;
}

// value = 0.digits * 10^point; the digits have no leading zero.
struct Magnitude {
  std::string digits;
  std::int64_t point = 0;
};

Magnitude MagnitudeOf(const NumericForm& form) {
  Magnitude magnitude;
  magnitude.digits.append(form.whole).append(form.fraction);
  magnitude.point = static_cast<std::int64_t>(form.whole.size()) + form.exponent;
  const std::size_t zeros = std::min(magnitude.digits.find_first_not_of('0'), magnitude.digits.size());
  magnitude.digits.erase(0, zeros);
  magnitude.point -= static_cast<std::int64_t>(zeros);
  return magnitude;
}

// Rounds the digits behind the point to the whole number, halves to the even one.
long RoundedHalfToEven(const Magnitude& number) {
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

// Nearly all numbers in files are written without an exponent, and only asked whether they are any.
bool IsNumeric(std::string_view text) {
  std::string_view rest = text;
  TakeSign(rest);
  bool hasDigit = false;
  bool hasSeparator = false;
  for (const char c : rest) {
    if (IsDigit(c)) {
      hasDigit = true;
    } else if (!hasSeparator && IsSeparator(c)) {
      hasSeparator = true;
    } else {
      return Parse(text).has_value();
    }
  }
  return hasDigit;
}

std::int16_t ToInteger16(std::string_view text) {
  if (const auto value = FewDigits(text)) return *value;
  const std::optional<NumericForm> form = Parse(TrimBlanks(text));
  if (!form) throw Failure(FailureNumber::TypeMismatch);
  const Magnitude number = MagnitudeOf(*form);
  if (number.digits.empty()) return 0;
  constexpr std::int64_t kDigitsThatFit = 5;
  if (number.point > kDigitsThatFit) throw Failure(FailureNumber::Overflow);
  const long magnitude = RoundedHalfToEven(number);
  return Checked16(form->negative ? -magnitude : magnitude);
}

}  // namespace wheelwright
