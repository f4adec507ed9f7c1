#include "oracle/Dice.h"

namespace wheelwright::testing {

int Dice::Below(int sides) {
  if (sides <= 256) return Byte() * sides / 256;
  const int high = Byte();
  return (high * 256 + Byte()) * sides / 65536;
}

int Dice::Byte() {
  if (engine_) return static_cast<int>((*engine_)() & 0xFF);
  return next_ < bytes_.size() ? static_cast<unsigned char>(bytes_[next_++]) : 0;
}

}  // namespace wheelwright::testing
