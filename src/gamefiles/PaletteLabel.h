// How a colour of the palette is shown in lists.
#pragma once

#include "core/Records.h"
#include "core/Text.h"

#include <string>
#include <vector>

namespace wheelwright {

// The name, " - ", then red, green and blue in decimal with "," between them:
// "Color94 - 0,128,255".
inline std::string PaletteLabel(const ColorEntry& color) {
  return Concatenated({color.ColorName, " - ", std::to_string(color.Red), ",", std::to_string(color.Green),
                       ",", std::to_string(color.Blue)});
}

// The colour that a label tells, its parts cut to their range; none for a text that isn't one.
std::vector<Rgb> ColorsInLabel(const std::string& label);

}  // namespace wheelwright
