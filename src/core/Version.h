// The program's name, version and home page as they stand in files, settings and messages.
#pragma once

#include <string>

namespace wheelwright {

inline constexpr const char* kProgramName = "Wheelwright";
inline constexpr int kVersionMajor = 1;
inline constexpr int kVersionMinor = 0;
inline constexpr int kVersionRevision = 0;
inline constexpr const char* kHomePage = "https://wheelwright.example/";

// Major, minor and revision number joined by ".".
inline std::string VersionText() {
  return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
         std::to_string(kVersionRevision);
}

}  // namespace wheelwright
