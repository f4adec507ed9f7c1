#include "gamefiles/CommaFields.h"

#include "core/Numbers.h"
#include "gamefiles/HandlingLine.h"

#include <algorithm>
#include <string_view>

namespace wheelwright {
namespace {

// More than a count that fits can have, even after every field has taken a comma away.
constexpr std::size_t kMostCommas = 65536;

void RemoveBlanksAndTabs(std::string& line) {
  std::erase_if(line, [](char byte) { return byte == ' ' || byte == '\t'; });
}

std::string FieldAt(std::string_view line, char separator, int index) {
  if (index < 0) return {};
  for (; index > 0; --index) {
    const std::size_t end = line.find(separator);
    if (end == std::string_view::npos) return {};
    line.remove_prefix(end + 1);
  }
  return std::string(line.substr(0, line.find(separator)));
}

}  // namespace

std::string GetCommaField(std::string& line, int index) {
  RemoveBlanksAndTabs(line);
  if (line.ends_with(',')) line.pop_back();
  return FieldAt(line, ',', index);
}

std::int16_t CountCommaFields(std::string& line) {
  RemoveBlanksAndTabs(line);
  if (line.empty()) return 0;
  return Checked16(std::count(line.begin(), line.end(), ',') + 1);
}

CommaLine::CommaLine(std::string_view line) : cleaned_(line) {
  RemoveBlanksAndTabs(cleaned_);
  length_ = cleaned_.size();
  const auto commas = static_cast<std::size_t>(std::count(cleaned_.begin(), cleaned_.end(), ','));
  commas_.reserve(std::min(commas, kMostCommas));
  for (std::size_t at = cleaned_.find(','); at != std::string::npos && commas_.size() < kMostCommas;
       at = cleaned_.find(',', at + 1)) {
    commas_.push_back(at);
  }
}

std::int16_t CommaLine::Count() const {
  if (length_ == 0) return 0;
  const auto gone = std::lower_bound(commas_.begin(), commas_.end(), length_);
  return Checked16(gone - commas_.begin() + 1);
}

std::string_view CommaLine::Field(int index) {
  if (length_ > 0 && cleaned_[length_ - 1] == ',') --length_;
  const auto place = static_cast<std::size_t>(index);
  if (index < 0 || place > commas_.size()) return {};
  const std::size_t begin = place == 0 ? 0 : commas_[place - 1] + 1;
  if (begin > length_) return {};
  const std::size_t end = place < commas_.size() ? commas_[place] : length_;
  return std::string_view(cleaned_).substr(begin, std::min(end, length_) - begin);
}

std::string GetSpaceField(std::string& line, int index) {
  line = CleanedLine(line);
  return FieldAt(line, ' ', index);
}

}  // namespace wheelwright
