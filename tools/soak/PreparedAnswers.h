// What the program will ask on the way of a step, as it is known beforehand.
#pragma once

#include "oracle/Dice.h"
#include "screen/Session.h"
#include "soak/Folder.h"
#include "soak/Step.h"

namespace wheelwright::soak {

// Gives the step an answer for each question and dialog that it will bring.
void PrepareAnswers(testing::Dice& dice, Session& session, const Folder& folder, Step& step);

}  // namespace wheelwright::soak
