// Reads a text as a handling file, writes what it says over it, and then any vehicles. The input:
// the text, an odd file if it is empty; dice.
#include "fuzz/FuzzInput.h"
#include "oracle/FormatLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  const std::string bytes = input.Take();
  Dice dice = input.TakeDice();
  const std::string text = bytes.empty() ? OddHandlingFile(dice) : bytes;
  RequireHandlingRead(text);
  RequireHandlingSaved(text);
  RequireHandlingWritten(text, OddVehicles(dice));
  if (bytes.empty()) RequireTidyHandlingKept(TidyHandlingFile(dice));
}

}  // namespace wheelwright
