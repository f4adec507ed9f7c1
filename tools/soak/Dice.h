// Chance that a seed repeats: the same seed gives the same throws on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace wheelwright::soak {

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}

  // 0 to below `sides`, which is at least 1.
  int Below(int sides);
  // Both ends included.
  int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
  bool OneIn(int sides) { return Below(sides) == 0; }

  template <class List>
  const auto& OneOf(const List& list) {
    return *(list.begin() + Below(static_cast<int>(list.end() - list.begin())));
  }
  std::string OneOf(std::initializer_list<const char*> list) {
    return *(list.begin() + Below(static_cast<int>(list.size())));
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace wheelwright::soak
