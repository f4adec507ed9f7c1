// What a session finds on its disk: small files of all kinds, valid, nearly valid, and garbage.
#pragma once

#include "oracle/Dice.h"
#include "soak/Folder.h"

namespace wheelwright::soak {

// The program's directory "app" and the files in "data".
Files RandomFiles(testing::Dice& dice);

}  // namespace wheelwright::soak
