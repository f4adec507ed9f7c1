#include "oracle/Dice.h"

namespace wheelwright::testing {

int Dice::Below(int sides) {
  std::int64_t thrown = Byte();
  std::int64_t of = 256;
  for (; of < sides; of *= 256) thrown = thrown * 256 + Byte();
  return static_cast<int>(thrown * sides / of);
}

int Dice::Byte() {
  if (engine_) return static_cast<int>((*engine_)() & 0xFF);
  return next_ < bytes_.size() ? static_cast<unsigned char>(bytes_[next_++]) : 0;
}

}  // namespace wheelwright::testing
