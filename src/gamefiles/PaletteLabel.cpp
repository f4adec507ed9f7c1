#include "gamefiles/PaletteLabel.h"

#include <algorithm>
#include <charconv>

namespace wheelwright {

// A name may hold anything, the numbers hold no blank: they stand behind the last one.
std::vector<Rgb> ColorsInLabel(const std::string& label) {
  constexpr int kMost = 255;
  const std::size_t blank = label.rfind(' ');
  if (blank == std::string::npos) return {};
  const char* at = label.data() + blank + 1;
  const char* const end = label.data() + label.size();
  Rgb color{};
  for (std::size_t i = 0; i < color.size(); ++i) {
    if (i > 0 && (at == end || *at++ != ',')) return {};
    const std::from_chars_result read = std::from_chars(at, end, color[i]);
    if (read.ec != std::errc()) return {};
    color[i] = std::clamp(color[i], 0, kMost);
    at = read.ptr;
  }
  return at == end ? std::vector<Rgb>{color} : std::vector<Rgb>();
}

}  // namespace wheelwright
