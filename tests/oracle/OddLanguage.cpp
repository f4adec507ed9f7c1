#include "core/Vars.h"
#include "oracle/OddFiles.h"
#include "oracle/OddTexts.h"

namespace wheelwright::testing {
namespace {

constexpr int kEntries = Vars::kLangEntries;

std::string EntryText(int entry) {
  std::string number = std::to_string(entry);
  number.insert(0, 3 - number.size(), '0');
  return "E" + number;
}

}  // namespace

std::string OddLanguage(Dice& dice, bool isWhole) {
  int count = kEntries;
  if (!isWhole && dice.OneIn(2)) count = dice.OneIn(10) ? kEntries + 1 : dice.Below(kEntries);
  std::string text;
  for (int entry = 0; entry < count; ++entry) {
    const bool isOdd = !isWhole && dice.OneIn(20);
    text += isOdd ? dice.OneOf({"", "&File", "a\\nb", "R&&D", "\xD6z", "\x81\x01", "<b>", "\\N\\x\\"})
                  : EntryText(entry);
    text += "\r\n";
  }
  return text;
}

}  // namespace wheelwright::testing
