// The first 14 columns of a handling line, by which reader and writer, each in its own way, tell
// what the line is.
#pragma once

#include <cstddef>
#include <string_view>

namespace wheelwright {

inline constexpr std::size_t kHeadColumns = 14;

inline std::string_view HeadOf(std::string_view line) { return line.substr(0, kHeadColumns); }

}  // namespace wheelwright
