#include "formats/NameIndex.h"

#include "core/Text.h"

#include <algorithm>
#include <set>

namespace wheelwright {
namespace {

std::size_t PairOf(char first, char second) {
  return static_cast<std::size_t>(static_cast<unsigned char>(first)) * 256U +
         static_cast<unsigned char>(second);
}

auto TextsOf(const std::vector<std::string>& texts) {
  return [&texts](int position) -> std::string_view { return texts[static_cast<std::size_t>(position)]; };
}

}  // namespace

NameIndex::NameIndex(const std::vector<std::string>& names) : names_(names) {
  exact_.Reserve(names.size());
  std::set<std::size_t> lengths;
  for (const std::string& name : names) {
    exact_.Add(name);
    lengths.insert(name.size());
  }
  lengths_.assign(lengths.begin(), lengths.end());
}

// Most files have no special lines, or none before a line of their own needs it.
void NameIndex::FoldNames() {
  folded_.Reserve(names_.size());
  foldedNames_.reserve(names_.size());
  alreadyHit_.assign(names_.size(), false);
  for (const std::string& name : names_) {
    const std::string& folded = foldedNames_.emplace_back(FoldedCase(name));
    folded_.Add(folded);
    if (folded.size() == 1) onlyOne_.set(static_cast<unsigned char>(folded[0]));
    if (folded.size() > 1) firstTwo_.set(PairOf(folded[0], folded[1]));
  }
}

const std::vector<NameHit>& NameIndex::Beginning(std::string_view line) {
  hits_.clear();
  const auto nameAt = TextsOf(names_);
  for (const std::size_t length : lengths_) {
    if (length > line.size()) break;
    for (int at = exact_.First(line.substr(0, length), nameAt); at != TextIndex::kNone;
         at = exact_.Next(at, nameAt)) {
      hits_.push_back({at, true});
    }
  }
  SortHits();
  return hits_;
}

const std::vector<NameHit>& NameIndex::Anywhere(std::string_view line) {
  if (folded_.Count() == 0) FoldNames();
  hits_.clear();
  const std::string folded = FoldedCase(line);
  AddFolded({});
  for (std::size_t at = 0; at < folded.size(); ++at) {
    const bool pairBegins = at + 1 < folded.size() && firstTwo_.test(PairOf(folded[at], folded[at + 1]));
    if (onlyOne_.test(static_cast<unsigned char>(folded[at]))) {
      AddFolded(std::string_view(folded).substr(at, 1));
    }
    if (!pairBegins) continue;
    for (const std::size_t length : lengths_) {
      if (at + length > folded.size()) break;
      if (length > 1) AddFolded(std::string_view(folded).substr(at, length));
    }
  }
  for (NameHit& hit : hits_) {
    alreadyHit_[static_cast<std::size_t>(hit.position)] = false;
    hit.begins = line.starts_with(names_[static_cast<std::size_t>(hit.position)]);
  }
  SortHits();
  return hits_;
}

void NameIndex::AddFolded(std::string_view part) {
  const auto foldedAt = TextsOf(foldedNames_);
  const int first = folded_.First(part, foldedAt);
  if (first == TextIndex::kNone || alreadyHit_[static_cast<std::size_t>(first)]) return;
  alreadyHit_[static_cast<std::size_t>(first)] = true;
  for (int at = first; at != TextIndex::kNone; at = folded_.Next(at, foldedAt)) hits_.push_back({at, false});
}

void NameIndex::SortHits() {
  if (hits_.size() < 2) return;
  std::sort(hits_.begin(), hits_.end(),
            [](const NameHit& left, const NameHit& right) { return left.position < right.position; });
}

}  // namespace wheelwright
