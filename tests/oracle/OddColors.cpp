#include "oracle/OddFiles.h"
#include "oracle/OddTexts.h"
#include "oracle/PlainTexts.h"

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

std::string Component(Dice& dice) {
  if (dice.OneIn(15)) return dice.OneOf({"300", "-1", "1.5", " 2 ", "32767"});
  if (dice.OneIn(60)) return dice.OneOf({"32768", "red", ""});
  return std::to_string(dice.Below(256));
}

std::string Color(Dice& dice) {
  return Strung({Component(dice), ",", Component(dice), ",", Component(dice),
                 dice.OneOf({"\t", "\t\t\t", "\t\t", " ", ",4\t"}),
                 dice.OneOf({"# 0 ", "# 1 ", "# 1 ", "\t#\t1\t", "#", "// ", "# "}),
                 dice.OneOf({"black", "Rot", "Blau", "Gelb", "rot", "dark red", "\xE4", "a - b", ""})});
}

std::string Vehicle(Dice& dice, int colors) {
  std::string line = dice.OneOf({"pipita", "Pipita", "lander", "bus", "\xE4", "taxi", "\tcar "});
  const int pairs = dice.Between(1, 4);
  for (int pair = 0; pair < 2 * pairs; ++pair) {
    line += dice.OneOf({", ", ",", ",\t"});
    line += std::to_string(dice.Below(dice.OneIn(12) ? colors + 5 : colors));
  }
  if (dice.OneIn(25)) line += dice.OneOf({",1", ",x,y", ", 99999, 1"});
  return line + (dice.OneIn(8) ? dice.OneOf({",", ",,", " # red ones", "\t"}) : "");
}

std::string Stray(Dice& dice) {
  return dice.OneOf({"", "# comment", "    # comment", "     # 1 comment", "ab", "abcd", "#end", " ",
                     "# file created with Wheelwright V0.9", "# 1 end",
                     "     # File created with Wheelwright V0",
                     "  # HOMEPAGE: https://wheelwright.example/ x"});
}

std::string Mark(Dice& dice) {
  return dice.OneOf({"col", "end", "car", "col #", "col  # x", "end #", "end  # x", "car # x", "colours",
                     "cars", "ending", "Col", " end", "CAR"});
}

std::string AnyLine(Dice& dice) {
  switch (dice.Below(6)) {
    case 0:
      return Stray(dice);
    case 1:
    case 2:
      return Color(dice);
    case 3:
      return Vehicle(dice, 4);
    case 4:
      return Mark(dice);
    default:
      return dice.OneIn(4) ? AnyBytes(dice, 20) : Stray(dice);
  }
}

Texts SomeLines(Dice& dice, int most) {
  Texts lines;
  for (int left = dice.Below(most + 1); left > 0; --left) lines.push_back(AnyLine(dice));
  return lines;
}

// Lines that open no section and hold no banner.
std::string SomeForeignLines(Dice& dice) {
  std::string text;
  for (const std::string& line : SomeLines(dice, 5)) {
    const bool isForeign = !HoldsBanner(line) && !line.starts_with("col") && !line.starts_with("car");
    text += (isForeign ? line : "text # kept") + "\r\n";
  }
  return text;
}

std::int16_t OddInteger(Dice& dice) {
  constexpr std::int16_t kEdges[] = {-32768, -7, -1, 300, 32767};
  if (dice.OneIn(6)) return kEdges[dice.Below(5)];
  return static_cast<std::int16_t>(dice.Below(256));
}

}  // namespace

std::string OddColorFile(Dice& dice) {
  if (dice.OneIn(6)) return TextOfLines(dice, SomeLines(dice, 12));
  Texts lines;
  const int colors = dice.Between(1, 6);
  if (dice.OneIn(2)) lines.push_back(Stray(dice));
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? Mark(dice) : "col");
  if (!dice.OneIn(15)) {
    for (int i = 0; i < colors; ++i) lines.push_back(dice.OneIn(12) ? Stray(dice) : Color(dice));
  }
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? Mark(dice) : "end");
  if (dice.OneIn(3)) lines.push_back(Stray(dice));
  if (!dice.OneIn(12)) lines.push_back(dice.OneIn(12) ? Mark(dice) : "car");
  const int vehicles = dice.Between(dice.OneIn(12) ? 0 : 1, 4);
  for (int i = 0; i < vehicles; ++i) lines.push_back(Vehicle(dice, colors));
  if (dice.OneIn(12)) lines.push_back(AnyLine(dice));
  if (!dice.OneIn(8)) lines.emplace_back("end");
  if (dice.OneIn(3)) lines.push_back(Stray(dice));
  return TextOfLines(dice, lines);
}

std::vector<ColorEntry> OddPalette(Dice& dice) {
  std::vector<ColorEntry> colors;
  do {
    colors.push_back(
        {OddInteger(dice), OddInteger(dice), OddInteger(dice), OddInteger(dice), OddField(dice)});
  } while (dice.OneIn(2));
  return colors;
}

std::vector<CarColorEntry> OddPairs(Dice& dice) {
  std::vector<CarColorEntry> entries;
  do {
    CarColorEntry& entry = entries.emplace_back();
    entry.ModelName = OddField(dice);
    for (int left = dice.Below(4); left > 0; --left) {
      entry.Pairs.push_back({OddInteger(dice), OddInteger(dice)});
    }
  } while (dice.OneIn(2));
  return entries;
}

std::string TidyColorFile(Dice& dice) {
  std::string text = SomeForeignLines(dice) + "col\r\n";
  const int colors = dice.Between(1, 6);
  for (int number = 0; number < colors; ++number) {
    text += dice.OneOf({"0,0,0\t\t\t\t", "25,25,2\t\t\t\t", "25,25,25\t\t\t", "-100,300,32767\t\t\t"});
    text += "# " + std::to_string(number) + " " + dice.OneOf({"oak", "elm", "ASH", "\xFC", "a-b"});
    text += "\r\n";
  }
  text += "end\r\n" + SomeForeignLines(dice) + "car\r\n";
  for (int vehicles = dice.Between(1, 5); vehicles > 0; --vehicles) {
    text += dice.OneOf({"bus", "cab", "van", "car"});
    for (int numbers = 2 * dice.Between(1, 4); numbers > 0; --numbers) {
      text += ", " + std::to_string(dice.Below(colors));
    }
    text += "\r\n";
  }
  return text + "end\r\n" + SomeForeignLines(dice);
}

}  // namespace wheelwright::testing
