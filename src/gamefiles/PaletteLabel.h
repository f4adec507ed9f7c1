// How a colour of the palette is shown in lists.
#pragma once

#include "core/Records.h"
#include "core/Text.h"

#include <array>
#include <optional>
#include <string>

namespace wheelwright {

// The name, " - ", then red, green and blue in decimal with "," between them:
// "Color94 - 0,128,255".
inline std::string PaletteLabel(const ColorEntry& color) {
  return Joined({color.ColorName, " - ", std::to_string(color.Red), ",", std::to_string(color.Green), ",",
                 std::to_string(color.Blue)});
}

// Red, green and blue as a label tells them, cut to 0 to 255; nothing for a text that isn't one.
std::optional<std::array<int, 3>> ColorInLabel(const std::string& label);

}  // namespace wheelwright
