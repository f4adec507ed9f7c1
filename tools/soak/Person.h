// Somebody at the program who does this and that, seldom wisely.
#pragma once

#include "oracle/Dice.h"
#include "screen/Session.h"
#include "soak/Folder.h"
#include "soak/Step.h"

namespace wheelwright::soak {

class Person {
 public:
  Person(testing::Dice& dice, Session& session, const Folder& folder)
      : dice_(dice), session_(session), folder_(folder) {}

  // The next thing to do, with the answers that it needs.
  Step Next();

 private:
  Step Idea();
  Step EditOnTabs();
  Step PickVehicle();
  Step Exchange();
  Step AnythingAnywhere();
  Step CloseSomething();

  testing::Dice& dice_;
  Session& session_;
  const Folder& folder_;
};

}  // namespace wheelwright::soak
