// The bytes of one run, divided into texts where a fuzzer needs several of them. The division is
// made of ordinary characters, so that seeds can be written by hand:
//
//   ; a comment
//   TAXI 1450.0 1.9
//   ==
//   what is left throws the dice
#pragma once

#include "oracle/Dice.h"

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::fuzz {

class FuzzInput {
 public:
  explicit FuzzInput(std::string_view bytes) : rest_(bytes) {}

  // What stands before the next line "==", all that is left if there is none. The line itself goes.
  std::string Take();
  // The lines of such a text, which end at line feeds; none if it is empty.
  std::vector<std::string> TakeLines();
  // Dice of all that is left.
  testing::Dice TakeDice() const { return testing::Dice(std::string(rest_)); }

 private:
  std::string_view rest_;
};

// What each fuzzer does with an input. Throws LawBroken, which libFuzzer takes for a crash.
void Try(FuzzInput input);

}  // namespace wheelwright::fuzz
