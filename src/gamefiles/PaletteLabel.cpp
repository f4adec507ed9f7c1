#include "gamefiles/PaletteLabel.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace wheelwright {
namespace {

constexpr std::string_view kBetween = " - ";

std::vector<Rgb> ColorNamed(const std::string& name, const std::vector<std::string>& palette) {
  const auto isOfName = [&](const std::string& label) {
    return label.rfind(kBetween) == name.size() && label.starts_with(name);
  };
  const auto found = std::find_if(palette.rbegin(), palette.rend(), isOfName);
  return found == palette.rend() ? std::vector<Rgb>() : ColorsInLabel(*found);
}

}  // namespace

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

// A name may hold what stands between two, so each place is tried.
std::vector<Rgb> ColorsInPair(const std::string& row, const std::vector<std::string>& palette) {
  for (std::size_t end = row.find(kBetween); end != std::string::npos; end = row.find(kBetween, end + 1)) {
    std::vector<Rgb> colors = ColorNamed(row.substr(0, end), palette);
    const std::vector<Rgb> second = ColorNamed(row.substr(end + kBetween.size()), palette);
    colors.insert(colors.end(), second.begin(), second.end());
    if (colors.size() == 2) return colors;
  }
  return {};
}

}  // namespace wheelwright
