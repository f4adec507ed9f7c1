#include "soak/OddText.h"
#include "soak/RandomFiles.h"

namespace wheelwright::soak {
namespace {

std::string Component(Dice& dice) {
  if (dice.OneIn(15)) return dice.OneOf({"300", "-1", "1.5", " 2 ", "32767"});
  if (dice.OneIn(60)) return dice.OneOf({"40000", "red", ""});
  return std::to_string(dice.Below(256));
}

std::string Color(Dice& dice) {
  return Strung(
      {Component(dice), ",", Component(dice), ",", Component(dice),
       dice.OneOf({"\t", "\t\t\t", "\t\t", " "}),
       dice.OneOf({"# 0 ", "# 1 ", "# 1 ", "#", "// ", "# "}),
       dice.OneOf({"black", "Rot", "Blau", "Gelb", "rot", "dark red", "\xE4", "a - b", ""})});
}

std::string Vehicle(Dice& dice, int colors) {
  std::string line = dice.OneOf({"pipita", "Pipita", "lander", "bus", "\xE4", "taxi"});
  const int pairs = dice.Between(1, 4);
  for (int pair = 0; pair < 2 * pairs; ++pair) {
    line += dice.OneOf({", ", ",", ",\t"});
    line += std::to_string(dice.Below(dice.OneIn(12) ? colors + 5 : colors));
  }
  if (dice.OneIn(25)) line += dice.OneOf({",1", ",x,y", ", 99999, 1"});
  return line + (dice.OneIn(8) ? dice.OneOf({",", " # red ones", "\t"}) : "");
}

std::string Stray(Dice& dice) {
  return dice.OneOf({"# comment", "   # comment", "      # 1 comment", "", "ab", "abcd",
                     "# file created with Wheelwright V0.9", "# 1 end"});
}

}  // namespace

std::string RandomColorFile(Dice& dice) {
  std::vector<std::string> lines;
  const int colors = dice.Between(1, 6);
  if (dice.OneIn(2)) lines.push_back(Stray(dice));
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? "col # 1" : "col");
  if (!dice.OneIn(15)) {
    for (int i = 0; i < colors; ++i) lines.push_back(dice.OneIn(12) ? Stray(dice) : Color(dice));
  }
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? "end  # 1" : "end");
  if (dice.OneIn(3)) lines.push_back(Stray(dice));
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? "car # 1" : "car");
  const int vehicles = dice.Between(dice.OneIn(12) ? 0 : 1, 4);
  for (int i = 0; i < vehicles; ++i) lines.push_back(Vehicle(dice, colors));
  if (dice.OneIn(12)) lines.push_back(dice.OneIn(3) ? AnyBytes(dice, 20) : " ");
  if (!dice.OneIn(8)) lines.emplace_back("end");
  if (dice.OneIn(3)) lines.push_back(Stray(dice));
  return FileOf(dice, lines);
}

}  // namespace wheelwright::soak
