#include "soak/OddText.h"
#include "soak/RandomFiles.h"

#include <string>

using namespace std::string_literals;

namespace wheelwright::soak {
namespace {

constexpr int kEntries = 221;

std::string EntryText(int entry) {
  std::string number = std::to_string(entry);
  number.insert(0, 3 - number.size(), '0');
  return "E" + number;
}

// A bitmap of one colour with 24 bits a pixel.
std::string Bitmap(int width, int height) {
  const int stride = (width * 3 + 3) / 4 * 4;
  const auto byte = [](int value, int place) { return static_cast<char>(value >> (8 * place)); };
  const auto number = [&](int value) {
    return std::string{byte(value, 0), byte(value, 1), byte(value, 2), byte(value, 3)};
  };
  return "BM" + number(54 + stride * height) + number(0) + number(54) + number(40) + number(width) +
         number(height) + "\x01\0\x18\0"s + number(0) + number(stride * height) + number(0) +
         number(0) + number(0) + number(0) +
         std::string(static_cast<std::size_t>(stride * height), '\x40');
}

}  // namespace

std::string RandomLanguage(Dice& dice, bool isWhole) {
  std::vector<std::string> lines;
  int count = kEntries;
  if (!isWhole && dice.OneIn(2)) count = dice.OneIn(10) ? kEntries + 1 : dice.Below(kEntries);
  for (int entry = 0; entry < count; ++entry) {
    const bool isOdd = !isWhole && dice.OneIn(20);
    lines.push_back(isOdd ? dice.OneOf({"", "&File", "a\\nb", "R&&D", "\xD6z", "\x81\x01", "<b>"})
                          : EntryText(entry));
  }
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string RandomPicture(Dice& dice) {
  if (dice.OneIn(4)) return "BM" + AnyBytes(dice, 60);
  if (dice.OneIn(8)) return "";
  return Bitmap(dice.Between(1, 9), dice.Between(1, 9));
}

}  // namespace wheelwright::soak
