// Reads a text as a colour file, writes what it says over it, and then any palette and pairs. The
// input: the text, an odd file if it is empty; dice.
#include "fuzz/FuzzInput.h"
#include "oracle/FormatLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  const std::string bytes = input.Take();
  Dice dice = input.TakeDice();
  const std::string text = bytes.empty() ? OddColorFile(dice) : bytes;
  RequireColorsRead(text);
  RequireColorsSaved(text);
  const std::vector<ColorEntry> colors = OddPalette(dice);
  RequireColorsWritten(text, colors, OddPairs(dice));
  if (bytes.empty()) RequireTidyColorsKept(TidyColorFile(dice));
}

}  // namespace wheelwright
