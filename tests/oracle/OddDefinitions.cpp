#include "formats/DefinitionFile.h"
#include "oracle/OddFiles.h"
#include "oracle/OddTexts.h"
#include "oracle/PlainTexts.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

std::string Comma(Dice& dice) { return dice.OneIn(3) ? dice.OneOf({", ", ",\t", " ,\t\t"}) : ","; }

std::string Field(Dice& dice) {
  if (!dice.OneIn(9)) return OddName(dice);
  return dice.OneOf({"", "a b", "\xE4", "0", "1 2", "x#y", "\x01", "six456", "seven67"});
}

std::string Vehicle(Dice& dice) {
  const std::string typ =
      dice.OneOf({"car", "car", "car", "boat", "bike", "heli", "plane", "plane", "Car", "tank"});
  std::string line = Strung({std::to_string(dice.Between(90, 160)), Comma(dice), Field(dice), Comma(dice),
                             Field(dice), Comma(dice), typ, Comma(dice)});
  line += Strung({OddName(dice), Comma(dice), Field(dice), Comma(dice),
                  dice.OneOf({"null", "van", "coach", "swim"}), Comma(dice)});
  line += Strung({dice.OneOf({"normal", "taxi", "big", "huge"}), Comma(dice), dice.OneOf({"10", "7", ""}),
                  Comma(dice), "7", Comma(dice), "0"});
  if (typ == "car" || dice.OneIn(4)) {
    line += Strung({Comma(dice), dice.OneOf({"250", "237", "256", "257", "240", "-1", ""}), Comma(dice),
                    dice.OneOf({"0.7", "1", ""})});
  } else if (typ == "plane") {
    line += Comma(dice) + "1";
  }
  return line + (dice.OneIn(8) ? dice.OneOf({",", " # taxi", ", ,", ",more,and more"}) : "");
}

std::string Line(Dice& dice) {
  switch (dice.Below(14)) {
    case 13:
      return dice.OneOf({"# comment", " # blank in front", "#", "# end", "#cars",
                         "# file created with wheelwright V0.9", "# Homepage: https://other.example/",
                         "x # Homepage: https://wheelwright.example/ x"});
    case 12:
      return dice.OneOf({"end", "end # comment", " end", "END", "ending"});
    case 11:
      return dice.OneOf({"cars", "cars # comment", "carsharing", "Cars", "cars,1"});
    case 10:
      return dice.OneIn(3) ? AnyBytes(dice, 30) : "";
    case 9:
      return dice.OneIn(6) ? "1,2,3" : "# 1,2,3";
    case 0:
      return "";
    default:
      return Vehicle(dice);
  }
}

// A line that opens no section and holds no banner.
std::string ForeignLine(Dice& dice) {
  const std::string line = Line(dice);
  return HoldsBanner(line) || line.starts_with("cars") ? "text # kept" : line;
}

std::string SomeForeignLines(Dice& dice) {
  std::string text;
  for (int left = dice.Below(8); left > 0; --left) text += ForeignLine(dice) + "\r\n";
  return text;
}

}  // namespace

std::string OddDefinitionFile(Dice& dice) {
  Texts lines;
  if (dice.OneIn(2)) lines.push_back(dice.OneOf({"# head", "objs", "", "1, lamp, generic"}));
  if (dice.OneIn(3)) lines.emplace_back("end");
  if (!dice.OneIn(12)) lines.emplace_back("cars");
  if (!dice.OneIn(8)) lines.push_back(Vehicle(dice));
  const int count = dice.Below(6);
  for (int i = 0; i < count; ++i) lines.push_back(Line(dice));
  if (!dice.OneIn(6)) lines.emplace_back("end");
  if (dice.OneIn(3)) lines.push_back(dice.OneOf({"peds", "", "# foot", "1, lamp, generic"}));
  return TextOfLines(dice, lines);
}

std::vector<IdeEntry> OddDefinitions(Dice& dice) {
  std::vector<IdeEntry> ides;
  do {
    IdeEntry& entry = ides.emplace_back();
    for (const DefinitionValue& field : kDefinitionValues) entry.*field.value = OddField(dice);
    if (dice.OneIn(2)) entry.Typ = dice.OneOf({"car", "plane"});
  } while (dice.OneIn(2));
  return ides;
}

std::string TidyDefinitionFile::Text() const {
  std::string text = before + "cars\r\n";
  for (const std::string& line : section) text += line + "\r\n";
  return text + "end\r\n" + behind;
}

TidyDefinitionFile MakeTidyDefinitionFile(Dice& dice) {
  TidyDefinitionFile file{SomeForeignLines(dice), {}, SomeForeignLines(dice)};
  do {
    file.section.push_back(Vehicle(dice));
    std::replace(file.section.back().begin(), file.section.back().end(), '#', ',');
  } while (!dice.OneIn(4) && file.section.size() < 9);
  return file;
}

}  // namespace wheelwright::testing
