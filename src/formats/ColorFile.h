// carcols.dat: the palette between "col" and "end", then the pairs between "car" and "end".
//
//   col
//   0,10,20<tab><tab><tab><tab># 1 navy        a colour; behind the first tab only the name counts
//   end
//   car
//   harrow, 0, 1, 5, 5                         a vehicle with two pairs
//   end
//
// Reading and writing take a pass over the whole file for each of the two sections.
#pragma once

#include "core/Records.h"
#include "formats/Sections.h"

#include <string>
#include <string_view>

namespace wheelwright {

struct PaletteSection {
  Table<ColorEntry> colors;
  int count = 0;  // of the colours read whole; the table is never without a record
};

// The names are those of the models.
using PairsSection = RecordSection<CarColorEntry>;

// Failures 13 and 6 for numbers that aren't any or don't fit; failure 6 past 32,767 lines or
// records. What was read until then is in the section.
void ReadPalette(std::string_view text, PaletteSection& section);
void ReadPairs(std::string_view text, PairsSection& section);

// The text of a file with the palette rewritten, and that text with the pairs rewritten too.
// Neither has the line end of its write.
std::string WritePalette(std::string_view onDisk, const Table<ColorEntry>& colors);
std::string WritePairs(std::string_view withPalette, const Table<CarColorEntry>& carColors);

}  // namespace wheelwright
