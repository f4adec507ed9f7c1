#include "oracle/OddFiles.h"
#include "oracle/OddTexts.h"
#include "support/VehicleTokens.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

std::string Token(Dice& dice, int index) {
  constexpr int kDrive = 15;
  constexpr int kMotor = 16;
  constexpr int kABS = 19;
  constexpr int kFlags = 30;
  if (index == kDrive) return dice.OneOf({"F", "R", "4", "f"});
  if (index == kMotor) return dice.OneOf({"P", "D", "E", "x", "4"});
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
  return Strung({dice.OneOf({"; a", ";", "   ;b ", "; Author: Bob", "; Created 1999", ";Created 2001",
                             "; it was created=2001", ";the end", "; % Author: x",
                             "; File created with Wheelwright V0.9",
                             "; HOMEPAGE: https://wheelwright.example/", "              ; far right"}),
                 dice.OneOf({"", "", " ", "\xE4 $", "&", " ;the end"})});
}

std::string MarkedLine(Dice& dice) {
  return Strung({dice.OneOf({"% ", "! ", "$ ", "  % ", "%! ", "x % "}), OddName(dice),
                 dice.OneOf({"", " 0.5 1 2", " ; TAXI"})});
}

std::string Line(Dice& dice) {
  switch (dice.Below(16)) {
    case 15:
    case 14:
    case 13:
      return Comment(dice);
    case 12:
    case 11:
      return MarkedLine(dice);
    case 10:
      return " " + Vehicle(dice);
    case 9:
      return AnyBytes(dice, 40);
    case 0:
      return "";
    default:
      return Vehicle(dice);
  }
}

Tokens TidyTokens(Dice& dice, const std::string& name) {
  Tokens tokens = {name};
  while (tokens.size() < kTokensOfAVehicle) {
    const std::string token = AnyBytes(dice, 5);
    const bool isToken = !token.empty() && token.find_first_of(" \t;%!$") == std::string::npos;
    tokens.push_back(isToken ? token : Token(dice, static_cast<int>(tokens.size())));
  }
  return tokens;
}

// Half of the vehicles bear a name of the list.
Car OddCar(Dice& dice, const Texts& names) {
  Car car;
  for (const HandlingToken& token : kHandlingTokens) {
    car.*token.value = dice.OneIn(8) ? OddField(dice) : "0.70";
  }
  car.CarName = names.empty() || dice.OneIn(2) ? OddName(dice) : dice.OneOf(names);
  return car;
}

}  // namespace

std::string OddHandlingFile(Dice& dice) {
  Texts lines;
  const int count = dice.Below(9);
  if (!dice.OneIn(5)) lines.push_back(Vehicle(dice));
  for (int i = 0; i < count; ++i) lines.push_back(Line(dice));
  // Lines of special kinds do no harm behind the vehicles that they name.
  while (dice.OneIn(2)) lines.push_back(MarkedLine(dice));
  return TextOfLines(dice, lines);
}

std::string OddExchangeFile(Dice& dice) {
  Texts lines{"; File created with Wheelwright V1.0.0", "; Author: Bob", ";"};
  const int count = dice.Below(5);
  for (int i = 0; i < count; ++i) lines.push_back(dice.OneIn(4) ? Line(dice) : Vehicle(dice));
  if (dice.OneIn(8)) lines.emplace_back("                blanks in front");
  lines.emplace_back(";the end");
  return TextOfLines(dice, lines);
}

PlainVehicles OddVehicles(Dice& dice) {
  PlainVehicles vehicles{OddNames(dice), {}, OddField(dice), OddField(dice)};
  for (int left = dice.Between(1, 5); left > 0; --left) {
    vehicles.cars.push_back(OddCar(dice, vehicles.names));
  }
  return vehicles;
}

PlainVehicles TidyVehicles(Dice& dice) {
  PlainVehicles vehicles;
  for (int left = dice.Between(1, 6); left > 0; --left) {
    const std::string name = "A" + FewOf(dice, "ABab\xC4%$", 13);
    vehicles.cars.push_back(CarOf(TidyTokens(dice, name)));
    vehicles.cars.back().LineKind = static_cast<std::int16_t>(dice.Below(4));
    if (vehicles.names.empty() || dice.OneIn(2)) vehicles.names.push_back(name);
  }
  return vehicles;
}

std::string TidyHandlingFile(Dice& dice) {
  Texts names;
  for (char letter = 'A'; letter < 'I'; ++letter) {
    if (names.empty() || !dice.OneIn(3)) names.emplace_back(3, letter);
  }
  Texts lines;
  for (const std::string& name : names) {
    lines.push_back(Joined(TidyTokens(dice, name), dice.OneOf({" ", "\t", " \t "})));
    if (dice.OneIn(2)) lines.push_back("; " + AnyBytes(dice, 20));
    if (dice.OneIn(2)) std::iter_swap(lines.begin(), lines.end() - 1);
  }
  for (const std::string& name : names) {
    if (dice.OneIn(3)) lines.push_back("% " + name);
  }
  std::string text;
  for (const std::string& line : lines) text += line + dice.OneOf({"\r\n", "\r\n", "\r"});
  return text;
}

}  // namespace wheelwright::testing
