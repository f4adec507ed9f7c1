#include "core/Text.h"

#include "core/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace wheelwright {
namespace {

// Whether no other byte folds to this one, so that a plain search for it misses nothing.
bool IsTheOnlyShapeOf(char folded) {
  return std::count(codepage::kLowerCase.begin(), codepage::kLowerCase.end(), folded) == 1;
}

// The first eight letters as a number of the same order; most texts differ there.
std::uint64_t BeginningOf(std::string_view text) {
  std::uint64_t beginning = 0;
  for (std::size_t i = 0; i < sizeof beginning; ++i) {
    beginning = beginning << 8U | static_cast<unsigned char>(i < text.size() ? FoldCase(text[i]) : '\0');
  }
  return beginning;
}

struct SortKey {
  std::uint64_t beginning;
  std::string* text;

  bool operator<(const SortKey& other) const {
    if (beginning != other.beginning) return beginning < other.beginning;
    return SortsBefore(*text, *other.text);
  }
};

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Concatenated(std::initializer_list<std::string_view> texts) {
  std::size_t length = 0;
  for (const std::string_view text : texts) length += text.size();
  std::string joined;
  joined.reserve(length);
  for (const std::string_view text : texts) joined += text;
  return joined;
}

std::string FoldedCase(std::string_view text) {
  std::string folded(text);
  std::transform(folded.begin(), folded.end(), folded.begin(), FoldCase);
  return folded;
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view folded, std::size_t from) {
  if (from + folded.size() > text.size()) return std::string_view::npos;
  if (folded.empty()) return from;
  const auto sameLetter = [](char inWord, char inText) { return FoldCase(inText) == inWord; };
  const bool oneShape = IsTheOnlyShapeOf(folded.front());
  for (std::size_t at = from; at + folded.size() <= text.size(); ++at) {
    if (oneShape) at = text.find(folded.front(), at);
    if (at == std::string_view::npos || at + folded.size() > text.size()) break;
    const auto* const place = text.data() + at;
    if (std::equal(folded.begin(), folded.end(), place, sameLetter)) return at;
  }
  return std::string_view::npos;
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() && CompareIgnoringCase(left, right) == 0;
}

int CompareIgnoringCase(std::string_view left, std::string_view right) {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const auto a = static_cast<unsigned char>(FoldCase(left[i]));
    const auto b = static_cast<unsigned char>(FoldCase(right[i]));
    if (a != b) return a < b ? -1 : 1;
  }
  if (left.size() == right.size()) return 0;
  return left.size() < right.size() ? -1 : 1;
}

void SortAsInLists(std::vector<std::string>& texts) {
  if (std::is_sorted(texts.begin(), texts.end(), SortsBefore)) return;
  std::vector<SortKey> keys;
  keys.reserve(texts.size());
  for (std::string& text : texts) keys.push_back({BeginningOf(text), &text});
  std::stable_sort(keys.begin(), keys.end());
  std::vector<std::string> sorted;
  sorted.reserve(texts.size());
  for (const SortKey& key : keys) sorted.push_back(std::move(*key.text));
  texts = std::move(sorted);
}

}  // namespace wheelwright
