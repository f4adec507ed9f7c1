#include "core/Numbers.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/TextLaws.h"
#include "support/Thrown.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace wheelwright::testing {
namespace {

// The form of numbers as a machine of a few states, moved by one character at a time.
enum class State { Begin, Sign, Whole, Point, Fraction, Mark, ExponentSign, Exponent, None };

State Next(State state, char byte) {
  const bool digit = byte >= '0' && byte <= '9';
  const bool sign = byte == '+' || byte == '-';
  const bool point = byte == '.' || byte == ',';
  const bool mark = byte == 'e' || byte == 'E' || byte == 'd' || byte == 'D';
  switch (state) {
    case State::Begin:
      return digit ? State::Whole : sign ? State::Sign : point ? State::Point : State::None;
    case State::Sign:
      return digit ? State::Whole : point ? State::Point : State::None;
    case State::Whole:
      return digit ? State::Whole : point ? State::Fraction : mark ? State::Mark : State::None;
    case State::Point:
      return digit ? State::Fraction : State::None;
    case State::Fraction:
      return digit ? State::Fraction : mark ? State::Mark : State::None;
    case State::Mark:
      return digit ? State::Exponent : sign ? State::ExponentSign : State::None;
    case State::ExponentSign:
    case State::Exponent:
      return digit ? State::Exponent : State::None;
    case State::None:
      break;
  }
  return State::None;
}

bool IsNumericPlainly(const std::string& text) {
  State state = State::Begin;
  for (const char byte : text) state = Next(state, byte);
  return state == State::Whole || state == State::Fraction || state == State::Exponent;
}

// An exponent beyond what the digits of the text could make up for is as good as any other.
int ExponentOf(const std::string& digits, std::size_t textSize) {
  const int most = static_cast<int>(textSize) + 10;
  const bool negative = digits.starts_with('-');
  int exponent = 0;
  for (const char byte : digits) {
    if (byte >= '0' && byte <= '9') exponent = std::min(most, exponent * 10 + (byte - '0'));
  }
  return negative ? -exponent : exponent;
}

// A number written out: "00123" and "4500" for "1.2345e2" with zeros on both sides as needed.
struct WrittenOut {
  std::string whole;
  std::string fraction;
};

WrittenOut WriteOut(std::string text) {
  if (text.front() == '-' || text.front() == '+') text.erase(0, 1);
  const std::size_t mark = std::min(text.find_first_of("eEdD"), text.size());
  const std::string exponentText = mark < text.size() ? text.substr(mark + 1) : "";
  const std::string number = text.substr(0, mark);
  const std::size_t point = std::min(number.find_first_of(".,"), number.size());
  WrittenOut out{number.substr(0, point), point < number.size() ? number.substr(point + 1) : std::string()};
  for (int left = ExponentOf(exponentText, text.size()); left != 0; left += left > 0 ? -1 : 1) {
    std::string& from = left > 0 ? out.fraction : out.whole;
    if (from.empty()) from = "0";
    if (left > 0) {
      out.whole += out.fraction.front();
      out.fraction.erase(0, 1);
    } else {
      out.fraction.insert(0, 1, out.whole.back());
      out.whole.pop_back();
    }
  }
  return out;
}

// The whole number, 100000 for all that are too large.
long RoundedPlainly(const std::string& text) {
  WrittenOut out = WriteOut(text);
  while (!out.whole.empty() && out.whole.front() == '0') out.whole.erase(0, 1);
  while (!out.fraction.empty() && out.fraction.back() == '0') out.fraction.pop_back();
  if (out.whole.size() > 5) return 100000;
  const long whole = std::strtol(out.whole.c_str(), nullptr, 10);
  const bool odd = whole % 2 != 0;
  const bool up = out.fraction > "5" || (out.fraction == "5" && odd);
  const long rounded = up ? whole + 1 : whole;
  return text.front() == '-' ? -rounded : rounded;
}

}  // namespace

void RequireNumberLaws(const std::string& text) {
  Require(IsNumeric(text) == IsNumericPlainly(text), "a number is told by its form");
  const std::string cut = CutBlanks(text);
  int expected = 0;
  long rounded = 0;
  if (!IsNumericPlainly(cut)) {
    expected = 13;
  } else {
    rounded = RoundedPlainly(cut);
    if (rounded < -32768 || rounded > 32767) expected = 6;
  }
  std::int16_t number = 0;
  const int failure = NumberThrownBy([&] { number = ToInteger16(text); });
  Require(failure == expected, "no number is failure 13, a number that doesn't fit failure 6");
  Require(failure != 0 || number == rounded, "a number is rounded, halves to the even one");
}

}  // namespace wheelwright::testing
