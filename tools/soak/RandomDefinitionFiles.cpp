#include "soak/OddText.h"
#include "soak/RandomFiles.h"

namespace wheelwright::soak {
namespace {

std::string Comma(Dice& dice) { return dice.OneIn(3) ? dice.OneOf({", ", ",\t", " ,\t\t"}) : ","; }

std::string Field(Dice& dice) {
  return dice.OneIn(9) ? dice.OneOf({"", "a b", "\xE4", "0", "1 2", "x#y", "\x01"}) : OddName(dice);
}

std::string Vehicle(Dice& dice) {
  const std::string typ =
      dice.OneOf({"car", "car", "car", "boat", "bike", "heli", "plane", "plane", "Car", "tank"});
  std::string line = Strung({std::to_string(dice.Between(90, 160)), Comma(dice), Field(dice),
                             Comma(dice), Field(dice), Comma(dice), typ, Comma(dice)});
  line += Strung({OddName(dice), Comma(dice), Field(dice), Comma(dice),
                  dice.OneOf({"null", "van", "coach", "swim"}), Comma(dice)});
  line += Strung({dice.OneOf({"normal", "taxi", "big", "huge"}), Comma(dice),
                  dice.OneOf({"10", "7", ""}), Comma(dice), "7", Comma(dice), "0"});
  if (typ == "car" || dice.OneIn(4)) {
    line += Strung({Comma(dice), dice.OneOf({"250", "237", "256", "257", "240", "-1", ""}),
                    Comma(dice), dice.OneOf({"0.7", "1", ""})});
  } else if (typ == "plane") {
    line += Comma(dice) + "1";
  }
  return line + (dice.OneIn(8) ? dice.OneOf({",", " # taxi", ", ,", ",more,and more"}) : "");
}

std::string Line(Dice& dice) {
  switch (dice.Below(14)) {
    case 0:
      return dice.OneOf({"# comment", " # blank in front", "#", "# end",
                         "# file created with wheelwright V0.9",
                         "# Homepage: https://wheelwright.example/"});
    case 1:
      return dice.OneOf({"end", "end # comment", " end", "END"});
    case 2:
      return dice.OneOf({"cars", "cars # comment", "carsharing"});
    case 3:
      return dice.OneIn(6) ? AnyBytes(dice, 30) : "";
    case 4:
      return dice.OneIn(6) ? "1,2,3" : "# 1,2,3";
    default:
      return Vehicle(dice);
  }
}

}  // namespace

std::string RandomDefinitionFile(Dice& dice) {
  std::vector<std::string> lines;
  if (dice.OneIn(2)) lines.push_back(dice.OneOf({"# head", "objs", "", "1, lamp, generic"}));
  if (dice.OneIn(3)) lines.emplace_back("end");
  if (!dice.OneIn(12)) lines.emplace_back("cars");
  if (!dice.OneIn(8)) lines.push_back(Vehicle(dice));
  const int count = dice.Below(6);
  for (int i = 0; i < count; ++i) lines.push_back(Line(dice));
  if (!dice.OneIn(6)) lines.emplace_back("end");
  if (dice.OneIn(3)) lines.push_back(dice.OneOf({"peds", "", "# foot", "1, lamp, generic"}));
  return FileOf(dice, lines);
}

}  // namespace wheelwright::soak
