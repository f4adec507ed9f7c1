// Reads a text as a definition file, writes what it says over it, and then any definitions. The
// input: the text, an odd file if it is empty; dice.
#include "fuzz/FuzzInput.h"
#include "oracle/FormatLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  const std::string bytes = input.Take();
  Dice dice = input.TakeDice();
  const std::string text = bytes.empty() ? OddDefinitionFile(dice) : bytes;
  RequireDefinitionsRead(text);
  RequireDefinitionsSaved(text);
  RequireDefinitionsWritten(text, OddDefinitions(dice));
  if (bytes.empty()) RequireTidyDefinitionsKept(MakeTidyDefinitionFile(dice));
}

}  // namespace wheelwright
