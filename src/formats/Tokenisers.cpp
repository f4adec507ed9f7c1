#include "formats/Tokenisers.h"

#include "core/Numbers.h"

#include <algorithm>

namespace wheelwright {
namespace {

// More than a count that fits can have, even after every field has taken a comma away.
constexpr std::size_t kMostCommas = 65536;

// Asked of every byte, most of which are above both.
bool IsBlankOrTab(char byte) {
  return static_cast<unsigned char>(byte) <= ' ' && (byte == ' ' || byte == '\t');
}

}  // namespace

void CommaLine::Take(std::string_view line) {
  cleaned_.resize(line.size());
  commas_.clear();
  length_ = 0;
  for (const char byte : line) {
    if (IsBlankOrTab(byte)) continue;
    if (byte == ',' && commas_.size() < kMostCommas) commas_.push_back(length_);
    cleaned_[length_++] = byte;
  }
}

std::int16_t CommaLine::CountCommaFields() const {
  if (length_ == 0) return 0;
  const auto gone = std::lower_bound(commas_.begin(), commas_.end(), length_);
  return Checked16(gone - commas_.begin() + 1);
}

std::string_view CommaLine::GetCommaField(int index) {
  if (length_ > 0 && cleaned_[length_ - 1] == ',') --length_;
  const auto place = static_cast<std::size_t>(index);
  if (index < 0 || place > commas_.size()) return {};
  const std::size_t begin = place == 0 ? 0 : commas_[place - 1] + 1;
  if (begin > length_) return {};
  const std::size_t end = place < commas_.size() ? commas_[place] : length_;
  return {cleaned_.data() + begin, std::min(end, length_) - begin};
}

SpaceLine::SpaceLine(std::string_view line) {
  const char* at = line.data();
  const char* const end = at + line.size();
  for (;;) {
    while (at != end && IsBlankOrTab(*at)) ++at;
    if (at == end) return;
    const char* const begin = at;
    while (at != end && !IsBlankOrTab(*at)) ++at;
    if (count_ < fields_.size()) {
      fields_[count_] = std::string_view(begin, static_cast<std::size_t>(at - begin));
    }
    ++count_;
  }
}

std::int16_t SpaceLine::CountSpaceFields() const { return Checked16(count_); }

std::string CleanedLine(std::string_view line) {
  std::string cleaned;
  cleaned.reserve(line.size());
  for (const char byte : line) {
    if (!IsBlankOrTab(byte)) {
      cleaned += byte;
    } else if (!cleaned.empty() && cleaned.back() != ' ') {
      cleaned += ' ';
    }
  }
  if (!cleaned.empty() && cleaned.back() == ' ') cleaned.pop_back();
  return cleaned;
}

}  // namespace wheelwright
