#include "bench/DataFiles.h"

#include "core/Text.h"

#include <array>

namespace wheelwright::bench {
namespace {

// Seven characters; neighbours in the file are far apart in the alphabet.
std::string NameOf(int vehicle) {
  constexpr unsigned kStride = 7919;
  constexpr unsigned kNames = 1'000'000;
  std::string digits = std::to_string(static_cast<unsigned>(vehicle) * kStride % kNames);
  return "V" + std::string(6 - digits.size(), '0') + digits;
}

// A number with decimals that differs from vehicle to vehicle.
std::string Decimal(int vehicle, int field) {
  const int hundredths = (vehicle * 37 + field * 101) % 10'000;
  return std::to_string(hundredths / 100) + "." + std::to_string(hundredths % 100);
}

// Tokens 1 to 32, some of them texts.
std::string TokensOf(int vehicle) {
  std::string tokens;
  for (int field = 1; field <= 32; ++field) {
    tokens += field % 4 == 0 ? "   " : " ";
    if (field == 15) {
      tokens += "R";
    } else if (field == 16) {
      tokens += "P";
    } else if (field == 19 || field > 30) {
      tokens += "1";
    } else if (field == 30) {
      tokens += "0000003";
    } else {
      tokens += Decimal(vehicle, field);
    }
  }
  return tokens;
}

std::string HandlingText(int vehicles) {
  std::string text = "; Author: the Marlow Bay project\r\n; Created 14 March 2004\r\n;\r\n";
  for (int vehicle = 0; vehicle < vehicles; ++vehicle) {
    text += NameOf(vehicle) + "      " + TokensOf(vehicle) + std::string(kLineEnd);
  }
  return text + ";the end\r\n";
}

std::string DefinitionText(int vehicles) {
  std::string text = "# Vehicles of Marlow Bay\r\ncars\r\n";
  for (int vehicle = 0; vehicle < vehicles; ++vehicle) {
    const std::string name = NameOf(vehicle);
    text += std::to_string(100 + vehicle) + ",\t" + name + ", \t" + name + ", \tcar,\t" + name + ",\tNAME" +
            std::to_string(vehicle % 1000) + ",\tnull,\tnormal,\t10,\t7,\t3210, 237, 0.7\r\n";
  }
  return text + "end\r\n";
}

// The palette is as long as those of the games are; only vehicles grow in number.
std::string ColorText(int vehicles) {
  constexpr int kPalette = 96;
  std::string text = "# Colours of Marlow Bay\r\ncol\r\n";
  for (int color = 0; color < kPalette; ++color) {
    const std::string number = std::to_string(color);
    text += number + "," + number + ",200\t\t\t\t# " + number + " shade" + number + "\r\n";
  }
  text += "end\r\ncar\r\n";
  for (int vehicle = 0; vehicle < vehicles; ++vehicle) {
    text += NameOf(vehicle);
    for (int field = 0; field < 8; ++field) {
      text += ", " + std::to_string((vehicle * 5 + field * 7) % kPalette);
    }
    text += kLineEnd;
  }
  return text + "end\r\n";
}

}  // namespace

const DataFile kHandlingData = {"handling", "handling.cfg", 1, HandlingText};
const DataFile kDefinitionData = {"definition", "default.ide", 2, DefinitionText};
const DataFile kColorData = {"colour", "carcols.dat", 3, ColorText};

}  // namespace wheelwright::bench
