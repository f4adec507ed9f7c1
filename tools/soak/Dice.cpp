#include "soak/Dice.h"

namespace wheelwright::soak {

int Dice::Below(int sides) {
  return static_cast<int>(engine_() % static_cast<std::uint64_t>(sides));
}

}  // namespace wheelwright::soak
