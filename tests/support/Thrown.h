// What a call throws.
#pragma once

#include "core/Failure.h"

namespace wheelwright::testing {

// The number of the failure that the call throws; 0 if it throws none.
template <class Call>
int NumberThrownBy(const Call& call) {
  try {
    call();
  } catch (const Failure& failure) {
    return static_cast<int>(failure.Number());
  }
  return 0;
}

}  // namespace wheelwright::testing
