// Reads a text as a language file, and a second one over it. The input: the two texts, an odd file
// for an empty one; dice.
#include "fuzz/FuzzInput.h"
#include "oracle/FormatLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  std::string first = input.Take();
  std::string second = input.Take();
  Dice dice = input.TakeDice();
  if (first.empty()) first = OddLanguage(dice, false);
  if (second.empty()) second = OddLanguage(dice, false);
  RequireLanguagesRead(first, second);
}

}  // namespace wheelwright
