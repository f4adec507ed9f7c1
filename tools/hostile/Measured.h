// Runs something in a process of its own and measures it.
#pragma once

#include <functional>
#include <string>

namespace wheelwright::hostile {

struct Measured {
  std::string outcome;  // what the call gave; "crashed" if its process ended otherwise
  double seconds = 0;
  int megabytes = 0;  // the most memory that the process held at a time
};

// `prepare` runs before the clock starts and in a process of its own, so that its memory isn't
// counted.
Measured Measure(const std::function<void()>& prepare, const std::function<std::string()>& call);

}  // namespace wheelwright::hostile
