#include "soak/OddText.h"

#include <array>

namespace wheelwright::soak {
namespace {

constexpr std::array<const char*, 44> kPieces = {
    "1500.0", "-0.5",   "0",      "1,5", "2e-3", " ",     "  ",      ",",      ";",
    "#",      "%",      "!",      "$",   "-",    "\t",    "&",       "&&",     "\"",
    "'",      "\\",     "\\n",    "/",   "<b>",  "ä",     "Ü",       "ß",      "€",
    "Ž",      "ž",      "ÿ",      "Ÿ",   "→",    "😀",     "e\u0301", "אב",     "\u00A0",
    "\u00AD", "\u200B", "NEWCAR", "BUS", "car",  "plane", "end",     "0000a00"};

}  // namespace

std::string Strung(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) text += part;
  return text;
}

std::string TypedText(Dice& dice) {
  std::string text;
  const int pieces = dice.OneIn(20) ? 9 : dice.Below(4);
  for (int i = 0; i < pieces; ++i) text += dice.OneOf(kPieces);
  return text;
}

std::string AnyBytes(Dice& dice, int longest) {
  std::string bytes;
  const int length = dice.Below(longest + 1);
  for (int i = 0; i < length; ++i) {
    const char byte = static_cast<char>(dice.Below(256));
    if (byte != '\r' && byte != '\n') bytes += byte;
  }
  return bytes;
}

std::string OddNumber(Dice& dice) {
  if (dice.OneIn(12)) return dice.OneOf({"heavy", "1.9.1", "1e3", "-", "\xFF\x01", "70000", "1,5"});
  return dice.OneOf({"0.0", "1500.0", "0.70", "-.5", "1", "2", "5", "0", "100000", "-1.0"});
}

std::string OddName(Dice& dice) {
  if (dice.OneIn(15)) return AnyBytes(dice, 6);
  return dice.OneOf({"BUS", "BUSX", "bus", "B", "TAXI", "M\xC4RZ", "m\xE4rz", "FOURTEENLETTER",
                     "SIXTEENCHARACTER", "4711", "LANDER", "PIPITA", "pipita", "a&b", "../x"});
}

}  // namespace wheelwright::soak
