// A law is what must hold for every input, however odd.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace wheelwright::testing {

class LawBroken : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws LawBroken with the law unless it holds.
inline void Require(bool holds, std::string_view law) {
  if (!holds) throw LawBroken(std::string(law));
}

// Also tells both texts, with what can't be seen of them escaped.
void RequireSameText(std::string_view found, std::string_view expected, std::string_view law);

}  // namespace wheelwright::testing
