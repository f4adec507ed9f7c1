// A source of choices. Whatever makes something odd throws these dice, and so does it from the
// bytes of a law, of a fuzzer, or of a random session alike.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>

namespace wheelwright::testing {

class Dice {
 public:
  // Each throw takes as many bytes as it has sides to tell apart. Behind the last byte all throws are 0.
  explicit Dice(std::string bytes) : bytes_(std::move(bytes)) {}
  // Without an end; the same seed gives the same throws on every machine.
  explicit Dice(std::uint64_t seed) : engine_(std::in_place, seed) {}

  // 0 to below `sides`, which is at least 1. A greater byte gives no smaller number.
  int Below(int sides);
  // Both ends included.
  int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
  // Never where the throws are 0, so that what is made ends there.
  bool OneIn(int sides) { return Below(sides) == sides - 1; }

  template <class List>
  const auto& OneOf(const List& list) {
    return *(list.begin() + Below(static_cast<int>(list.end() - list.begin())));
  }
  std::string OneOf(std::initializer_list<const char*> list) {
    return *(list.begin() + Below(static_cast<int>(list.size())));
  }

 private:
  int Byte();

  std::string bytes_;
  std::size_t next_ = 0;
  std::optional<std::mt19937_64> engine_;
};

}  // namespace wheelwright::testing
