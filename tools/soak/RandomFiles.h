// Small random files of all kinds: valid, nearly valid, and garbage.
#pragma once

#include "soak/Dice.h"
#include "soak/Folder.h"

#include <string>
#include <vector>

namespace wheelwright::soak {

// The lines, mostly ended by carriage return and line feed, now and then by something else.
std::string FileOf(Dice& dice, const std::vector<std::string>& lines);

std::string RandomHandlingFile(Dice& dice);
std::string RandomDefinitionFile(Dice& dice);
std::string RandomColorFile(Dice& dice);
// Vehicles for an import.
std::string RandomExchangeFile(Dice& dice);
// A language whose entry n is "En", or one that is short, odd or too long.
std::string RandomLanguage(Dice& dice, bool isWhole);
// A picture, or what only claims to be one.
std::string RandomPicture(Dice& dice);

// All that a session finds on its disk: the program's directory "app" and the files in "data".
Files RandomFiles(Dice& dice);

}  // namespace wheelwright::soak
