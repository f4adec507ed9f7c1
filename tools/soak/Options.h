// The command line of the random sessions.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wheelwright::soak {

struct Options {
  bool onWidgets = false;
  double seconds = 0;  // at least one session is played
  std::uint64_t seed = 0;
  std::string findings;  // the directory for sessions in which something was wrong
};

inline constexpr const char* kUsage =
    "usage: wheelwright-soak plain|widgets SECONDS SEED FINDINGS\n"
    "\n"
    "Plays random sessions, the first with the seed, each further one with the next number. With\n"
    "\"widgets\" each is played on the plain controls and then on the real windows.\n";

// Nothing for a command line that can't be understood.
std::optional<Options> OptionsFrom(const std::vector<std::string>& arguments);

}  // namespace wheelwright::soak
