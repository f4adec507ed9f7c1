// Small files of all kinds, odd and tidy, and what may stand in the tables when they are written.
#pragma once

#include "core/Records.h"
#include "oracle/Dice.h"
#include "oracle/HandlingReference.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

// Valid, nearly valid, or garbage.
std::string OddHandlingFile(Dice& dice);
std::string OddDefinitionFile(Dice& dice);
std::string OddColorFile(Dice& dice);
// Vehicles for an import.
std::string OddExchangeFile(Dice& dice);
// A language whose entry n is "En", or one that is short, odd or too long.
std::string OddLanguage(Dice& dice, bool isWhole);

// At least one record in each table.
PlainVehicles OddVehicles(Dice& dice);
std::vector<IdeEntry> OddDefinitions(Dice& dice);
std::vector<ColorEntry> OddPalette(Dice& dice);
std::vector<CarColorEntry> OddPairs(Dice& dice);

// A file in which every rule of the format is kept: its vehicles' names are different and none is
// the beginning of another, special lines stand behind them, comments anywhere.
std::string TidyHandlingFile(Dice& dice);

// Vehicles without blanks in their texts, of names that fit into the head of a line.
PlainVehicles TidyVehicles(Dice& dice);

// Files of one section each, with at least one record and no comment in it. What lies around it is
// any lines but such that open a section or hold a banner.
struct TidyDefinitionFile {
  std::string before;
  std::vector<std::string> section;
  std::string behind;

  std::string Text() const;
};
TidyDefinitionFile MakeTidyDefinitionFile(Dice& dice);

// Laid out as a save lays it out.
std::string TidyColorFile(Dice& dice);

}  // namespace wheelwright::testing
