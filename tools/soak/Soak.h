// Random sessions, one after the other.
#pragma once

#include "soak/PlainSession.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace wheelwright::soak {

struct Options {
  bool onWidgets = false;
  double seconds = 0;  // at least one session is played
  std::uint64_t seed = 0;
  std::string findings;  // the directory for sessions in which something was wrong
};

// Plays a recording once more and tells what came out otherwise; empty if nothing did.
using SecondPlay = std::function<std::string(const Recording&, const Folder&)>;

// Plays until the time is over or too much was wrong, and says how many sessions there were. True
// if nothing was wrong. `again` may be empty.
bool Soak(const Options& options, const SecondPlay& again, std::ostream& report);

}  // namespace wheelwright::soak
