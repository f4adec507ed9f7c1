// How a colour of the palette is shown in lists.
#pragma once

#include "core/Records.h"
#include "core/Text.h"

#include <array>
#include <string>
#include <vector>

namespace wheelwright {

// Red, green and blue, each from 0 to 255.
using Rgb = std::array<int, 3>;

// The name, " - ", then red, green and blue in decimal with "," between them:
// "Color94 - 0,128,255".
inline std::string PaletteLabel(const ColorEntry& color) {
  return Joined({color.ColorName, " - ", std::to_string(color.Red), ",", std::to_string(color.Green), ",",
                 std::to_string(color.Blue)});
}

// The colour that a label tells, its parts cut to their range; none for a text that isn't one.
std::vector<Rgb> ColorsInLabel(const std::string& label);

// The two colours whose names, with " - " between them, are a pair's row, by the labels of the palette;
// none if a name is in no label. Of two colours with one name the later one counts.
std::vector<Rgb> ColorsInPair(const std::string& row, const std::vector<std::string>& palette);

}  // namespace wheelwright
