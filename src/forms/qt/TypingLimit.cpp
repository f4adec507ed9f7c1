#include "forms/qt/TypingLimit.h"

#include "forms/qt/QtText.h"

namespace wheelwright {
namespace {

bool EndsInPairBefore(const QString& text, int cursor) {
  return cursor > 1 && text[cursor - 1].isLowSurrogate() && text[cursor - 2].isHighSurrogate();
}

}  // namespace

QValidator::State TypingLimit::validate(QString& text, int& cursor) const {
  const std::size_t longest = box_.LongestByHand();
  if (longest == std::string::npos) return Acceptable;
  std::size_t length = InCodePage(text).size();
  while (length > longest && cursor > 0) {
    const int units = EndsInPairBefore(text, cursor) ? 2 : 1;
    text.remove(cursor - units, units);
    cursor -= units;
    length = InCodePage(text).size();
  }
  return length <= longest ? Acceptable : Invalid;
}

}  // namespace wheelwright
