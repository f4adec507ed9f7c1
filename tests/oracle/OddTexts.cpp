#include "oracle/OddTexts.h"

namespace wheelwright::testing {

std::string Strung(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) text += part;
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

std::string FewOf(Dice& dice, const std::string& characters, int longest) {
  std::string text(static_cast<std::size_t>(dice.Below(longest + 1)), ' ');
  for (char& character : text) character = dice.OneOf(characters);
  return text;
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

std::vector<std::string> OddNames(Dice& dice) {
  std::vector<std::string> names(static_cast<std::size_t>(dice.Below(6)));
  for (std::string& name : names) name = OddName(dice);
  return names;
}

std::string OddField(Dice& dice) {
  if (dice.OneIn(6)) return AnyBytes(dice, 9);
  return dice.OneOf({"1", "bus", "six456", "seven67", "car", "plane", "boat", "Car", "\xE4\x01", "-1", "end",
                     "col", "#", ";", "%y", "", "0.70", "author:"});
}

std::string TextOfLines(Dice& dice, const std::vector<std::string>& lines) {
  const int ending = dice.Below(14);
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    if (ending == 13) {
      text += '\n';
    } else if (ending == 12) {
      text += dice.OneOf({"\r\n", "\n", "\r"});
    } else {
      text += "\r\n";
    }
  }
  if (ending == 11 && text.size() > 2) text.resize(text.size() - 2);
  return text;
}

}  // namespace wheelwright::testing
