// The pick lists of a definition's tabs: the file's own words, in no language, in this order.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace wheelwright {

inline constexpr std::array kTypes = {"car", "boat", "bike", "heli", "plane"};
inline constexpr std::array kAnimations = {"null",  "van",   "biked", "bikeh",
                                           "bikes", "bikev", "coach"};
inline constexpr std::array kClasses = {"normal", "poorfamily", "richfamily", "leisureboat",
                                        "ignore", "big",        "executive",  "worker",
                                        "taxi",   "workerboat", "motorbike",  "moped"};
inline constexpr std::array kWheels = {"Rim",      "Offroad", "Truck", "Sport",      "Saloon",
                                       "Lightvan", "Classic", "Alloy", "Lighttruck", "Smallcar"};

template <std::size_t Size>
std::vector<std::string> FixedEntries(const std::array<const char*, Size>& entries) {
  return {entries.begin(), entries.end()};
}

}  // namespace wheelwright
