// The command line of the replay.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace wheelwright::replay {

struct Options {
  bool plain = false;
  bool dark = false;    // the real windows in the colours of a dark desktop
  int screenWidth = 0;  // the size of the screen that the real windows fit into; 0 for any
  int screenHeight = 0;
  std::string appDirectory;  // UTF-8
};

inline constexpr const char* kUsage =
    "usage: wheelwright-replay [--plain | --dark] [--screen WIDTHxHEIGHT] --app DIR < script > result\n";

// Nothing for a command line that can't be understood.
std::optional<Options> OptionsFrom(const std::vector<std::string>& arguments);

}  // namespace wheelwright::replay
