// A law is what must hold for every input. A fuzzer that finds one broken says so and aborts, which
// is how libFuzzer learns of a finding.
#pragma once

#include <string_view>

namespace wheelwright::fuzz {

[[noreturn]] void EndWithBrokenLaw(std::string_view law);

inline void Require(bool holds, std::string_view law) {
  if (!holds) EndWithBrokenLaw(law);
}

// Also shows both texts, with what can't be seen of them escaped.
void RequireSameText(std::string_view found, std::string_view expected, std::string_view law);

}  // namespace wheelwright::fuzz
