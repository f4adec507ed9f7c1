#include "gamefiles/PaletteLabel.h"

#include <algorithm>
#include <charconv>

namespace wheelwright {

// A name may hold anything, the numbers hold no blank: they stand behind the last one.
std::optional<std::array<int, 3>> ColorInLabel(const std::string& label) {
  constexpr int kMost = 255;
  const std::size_t blank = label.rfind(' ');
  if (blank == std::string::npos) return std::nullopt;
  const char* at = label.data() + blank + 1;
  const char* const end = label.data() + label.size();
  std::array<int, 3> color{};
  for (std::size_t i = 0; i < color.size(); ++i) {
    if (i > 0 && (at == end || *at++ != ',')) return std::nullopt;
    const std::from_chars_result read = std::from_chars(at, end, color[i]);
    if (read.ec != std::errc()) return std::nullopt;
    color[i] = std::clamp(color[i], 0, kMost);
    at = read.ptr;
  }
  return at == end ? std::optional(color) : std::nullopt;
}

}  // namespace wheelwright
