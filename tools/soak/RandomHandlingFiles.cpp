#include "soak/OddText.h"
#include "soak/RandomFiles.h"

namespace wheelwright::soak {
namespace {

std::string Token(Dice& dice, int index) {
  constexpr int kDrive = 15;
  constexpr int kMotor = 16;
  constexpr int kABS = 19;
  constexpr int kFlags = 30;
  if (index == kDrive) return dice.OneOf({"F", "R", "4", "f"});
  if (index == kMotor) return dice.OneOf({"P", "D", "E", "x"});
  if (index == kABS) return dice.OneOf({"0", "1", "2", "3", "x"});
  if (index == kFlags) {
    return dice.OneOf({"0000000", "1234567", "3", "0000a00", "FEDCBA9", "123456789", "8000001"});
  }
  if (index > kFlags) return dice.OneOf({"0", "1", "2", "3", "4"});
  return OddNumber(dice);
}

std::string Vehicle(Dice& dice) {
  std::string line = OddName(dice);
  if (dice.OneIn(3) && line.size() < 14) line.resize(14, ' ');
  const int tokens = dice.OneIn(6) ? dice.Below(35) : 33;
  for (int index = 1; index < tokens; ++index) {
    line += dice.OneIn(10) ? dice.OneOf({"\t", "   ", " \t "}) : " ";
    line += Token(dice, index);
  }
  return line + (dice.OneIn(8) ? dice.OneOf({" ; tuned", " \t", " %", ";"}) : "");
}

std::string Comment(Dice& dice) {
  return Strung(
      {dice.OneOf({"; a", ";", "   ;b ", "; Author: Bob", "; Created 1999", ";Created 2001",
                   "; it was created=2001", ";the end", "; % Author: x",
                   "; File created with Wheelwright V0.9",
                   "; HOMEPAGE: https://wheelwright.example/", "              ; far right"}),
       dice.OneOf({"", "", " ", "\xE4 $", "&"})});
}

std::string MarkedLine(Dice& dice) {
  return Strung({dice.OneOf({"% ", "! ", "$ ", "  % ", "%! ", "x % "}), OddName(dice),
                 dice.OneOf({"", " 0.5 1 2", " ; TAXI"})});
}

std::string Line(Dice& dice) {
  switch (dice.Below(16)) {
    case 0:
    case 1:
    case 2:
      return Comment(dice);
    case 3:
      return MarkedLine(dice);
    case 4:
      return " " + Vehicle(dice);
    case 5:
      return "";
    case 6:
      return AnyBytes(dice, 40);
    default:
      return Vehicle(dice);
  }
}

}  // namespace

std::string RandomHandlingFile(Dice& dice) {
  std::vector<std::string> lines;
  const int count = dice.Below(9);
  if (!dice.OneIn(5)) lines.push_back(Vehicle(dice));
  for (int i = 0; i < count; ++i) lines.push_back(Line(dice));
  // Lines of special kinds do no harm behind the vehicles that they name.
  if (dice.OneIn(3)) lines.push_back(MarkedLine(dice));
  return FileOf(dice, lines);
}

std::string RandomExchangeFile(Dice& dice) {
  std::vector<std::string> lines{"; File created with Wheelwright V1.0.0", "; Author: Bob", ";"};
  const int count = dice.Below(5);
  for (int i = 0; i < count; ++i) lines.push_back(dice.OneIn(6) ? Line(dice) : Vehicle(dice));
  if (dice.OneIn(8)) lines.emplace_back("                blanks in front");
  lines.emplace_back(";the end");
  return FileOf(dice, lines);
}

}  // namespace wheelwright::soak
