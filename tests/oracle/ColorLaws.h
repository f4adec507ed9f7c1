// What holds for every colour file, however odd.
#pragma once

#include "core/Records.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// The readers of the two sections read what plain ones read, up to what ends them.
void RequireColorsRead(const std::string& text);

// The writers write what plain ones write over any template. Comments come through byte for byte
// and in order; a third save adds its line ends at most.
void RequireColorsWritten(const std::string& onDisk, const std::vector<ColorEntry>& colors,
                          const std::vector<CarColorEntry>& carColors);

// With its line ends put right: what was read from two plain sections and saved loads with the same
// colours and pairs.
void RequireColorsSaved(const std::string& bytes);

// A save of a tidy file adds the banner and its line ends, each further one line ends alone; the
// saved file loads with the same colours, numbered anew, and the same pairs.
void RequireTidyColorsKept(const std::string& text);

}  // namespace wheelwright::testing
