// Dice for the laws.
#pragma once

#include "oracle/Dice.h"

#include <cstdint>
#include <rapidcheck.h>
#include <string>
#include <utility>

namespace wheelwright::testing {

inline std::string BytesOf(std::pair<std::uint64_t, std::size_t> seedAndLength) {
  std::mt19937_64 engine(seedAndLength.first);
  std::string bytes(seedAndLength.second, '\0');
  for (char& byte : bytes) byte = static_cast<char>(engine());
  return bytes;
}

// Dice of other bytes in each run of a law; a law that fails is tried with fewer of them.
inline Dice AnyDice() {
  const auto bytes = rc::gen::map(
      rc::gen::pair(rc::gen::arbitrary<std::uint64_t>(), rc::gen::inRange<std::size_t>(0, 2000)), BytesOf);
  const auto fewer = [](const std::string& all) { return rc::shrink::removeChunks(all); };
  return Dice(*rc::gen::shrink(rc::gen::noShrink(bytes), fewer));
}

// The text of a file, said with its bytes when the law fails.
inline std::string Told(std::string text) {
  RC_LOG() << "the file: " << rc::toString(text) << std::endl;
  return text;
}

}  // namespace wheelwright::testing
