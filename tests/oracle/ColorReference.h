// The colour file's reader and writer once more: as plain as their description, sharing nothing
// with the program's own but the conversion of numbers. The laws hold the two against each other.
#pragma once

#include "core/Records.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// What the two passes of a reader leave behind.
struct PlainColors {
  std::vector<ColorEntry> colors;
  std::vector<std::string> labels;
  bool firstPassEnded = false;
  std::vector<CarColorEntry> carColors;
  std::vector<std::string> keys;  // in the order of the file
  int damagedLine = 0;            // 0: none
  int failure = 0;                // its number; what was read until then stands above
};

PlainColors ReadColorsPlainly(const std::string& text);

// The name, " - ", and the components with commas between them.
std::string PlainLabel(const ColorEntry& color);

// Shows the pairs of a vehicle: a row for each. A number that gives no name becomes that of the
// first colour; behind a named one none does.
std::vector<std::string> ShowPairsPlainly(const std::vector<ColorEntry>& colors, CarColorEntry& entry);

// The file behind the first pass of a save, and the text behind the second without the line end of
// the final write.
std::string WritePalettePlainly(const std::string& onDisk, const std::vector<ColorEntry>& colors);
std::string WritePairsPlainly(const std::string& onDisk, const std::vector<CarColorEntry>& carColors);

}  // namespace wheelwright::testing
