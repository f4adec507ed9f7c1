#include "soak/RandomFiles.h"

#include "oracle/OddFiles.h"
#include "oracle/OddTexts.h"

#include <string>

using namespace std::string_literals;

namespace wheelwright::soak {
namespace {

// A bitmap of one colour with 24 bits a pixel.
std::string Bitmap(int width, int height) {
  const int stride = (width * 3 + 3) / 4 * 4;
  const auto byte = [](int value, int place) { return static_cast<char>(value >> (8 * place)); };
  const auto number = [&](int value) {
    return std::string{byte(value, 0), byte(value, 1), byte(value, 2), byte(value, 3)};
  };
  return "BM" + number(54 + stride * height) + number(0) + number(54) + number(40) + number(width) +
         number(height) + "\x01\0\x18\0"s + number(0) + number(stride * height) + number(0) + number(0) +
         number(0) + number(0) + std::string(static_cast<std::size_t>(stride * height), '\x40');
}

// A picture, or what only claims to be one.
std::string RandomPicture(testing::Dice& dice) {
  if (dice.OneIn(4)) return "BM" + testing::AnyBytes(dice, 60);
  if (dice.OneIn(8)) return "";
  const int width = dice.Between(1, 9);
  return Bitmap(width, dice.Between(1, 9));
}

}  // namespace

Files RandomFiles(testing::Dice& dice) {
  Files files;
  files["app/Aa.lng"] = testing::OddLanguage(dice, true);
  if (!dice.OneIn(3)) files["app/Odd.lng"] = testing::OddLanguage(dice, false);
  if (dice.OneIn(2)) files["app/Anleitung.htm"] = "manual";
  if (dice.OneIn(2)) files["app/gfx/bus.bmp"] = RandomPicture(dice);
  if (dice.OneIn(3)) files["app/gfx/nopictureavailable.jpg"] = RandomPicture(dice);
  files["data/handling.cfg"] = testing::OddHandlingFile(dice);
  files["data/second.cfg"] = testing::OddHandlingFile(dice);
  files["data/default.ide"] = testing::OddDefinitionFile(dice);
  files["data/carcols.dat"] = testing::OddColorFile(dice);
  files["data/swap.cfg"] = testing::OddExchangeFile(dice);
  if (dice.OneIn(4)) files["data/second.dat"] = testing::OddColorFile(dice);
  if (dice.OneIn(4)) files["data/odd.cfg.backup"] = testing::OddHandlingFile(dice);
  if (dice.OneIn(4)) files["data/garbage.ide"] = testing::AnyBytes(dice, 200);
  if (dice.OneIn(8)) files["data/notes.TXT"] = testing::AnyBytes(dice, 20);
  return files;
}

}  // namespace wheelwright::soak
