// Where the keys of a table's records stand, so that a record is found without a walk over all.
#pragma once

#include "core/FieldText.h"
#include "core/TextIndex.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace wheelwright {

// Looks, at the next search, at the keys of the records that were handed out to be changed; once
// one is another, all keys are read again. A key must not be changed through a reference from
// before that search.
template <class Record>
class KeyIndex {
 public:
  using Key = FieldText Record::*;
  static constexpr int kNone = TextIndex::kNone;

  KeyIndex() = default;
  ~KeyIndex() = default;
  // A copy of a table is searched seldom; its index is made when it is.
  KeyIndex(const KeyIndex& /*other*/) {}
  KeyIndex& operator=(const KeyIndex& /*other*/) {
    Forget();
    return *this;
  }

  // To be told of every record that is handed out to be changed.
  void MayChange(int position, const Record& record) {
    const bool isKnown = position < keys_.Count();
    if (isKnown && (lent_.empty() || lent_.back().first != position))
      lent_.emplace_back(position, record.*key_);
  }

  // To be told when the records are others.
  void Forget() {
    keys_.Clear();
    lent_.clear();
  }

  // The position of the first record whose key equals the text byte for byte, kNone if none does.
  template <class Walk>
  int First(const Walk& records, Key key, std::string_view text) {
    if (key != key_ || IsStale(records)) Forget();
    key_ = key;
    lent_.clear();
    keys_.Reserve(records.size());
    for (auto position = static_cast<std::size_t>(keys_.Count()); position < records.size(); ++position) {
      keys_.Add(records[position].*key);
    }
    return keys_.First(text, KeysOf(records));
  }

  // The position of the next record with the same key, as of the last search.
  template <class Walk>
  int Next(const Walk& records, int position) const {
    return keys_.Next(position, KeysOf(records));
  }

 private:
  template <class Walk>
  auto KeysOf(const Walk& records) const {
    return [&records, key = key_](int position) -> std::string_view {
      return records[static_cast<std::size_t>(position)].*key;
    };
  }

  template <class Walk>
  bool IsStale(const Walk& records) const {
    return std::any_of(lent_.begin(), lent_.end(), [&](const auto& lent) {
      return records[static_cast<std::size_t>(lent.first)].*key_ != lent.second;
    });
  }

  Key key_ = nullptr;
  TextIndex keys_;
  std::vector<std::pair<int, FieldText>> lent_;  // positions, with their keys before
};

}  // namespace wheelwright
