// Where the keys of a table's records stand, so that a record is found without a walk over all.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wheelwright {

// Keeps up with the table by reading again, at the next search, the keys of the records that were
// handed out to be changed. A key must not be changed through a reference from before that search.
template <class Record>
class KeyIndex {
 public:
  using Key = std::string Record::*;
  static constexpr int kNone = -1;

  KeyIndex() = default;
  ~KeyIndex() = default;
  // A copy of a table is searched seldom; its index is made when it is.
  KeyIndex(const KeyIndex& /*other*/) {}
  KeyIndex& operator=(const KeyIndex& /*other*/) {
    Forget();
    return *this;
  }

  // To be told of every record that is handed out to be changed.
  void MayChange(int position) {
    const bool isKnown = position < static_cast<int>(entries_.size());
    if (isKnown && (stale_.empty() || stale_.back() != position)) stale_.push_back(position);
  }

  // To be told when the records are others.
  void Forget() {
    chains_.clear();
    entries_.clear();
    next_.clear();
    stale_.clear();
  }

  // The position of the first record whose key equals the text byte for byte, kNone if none does.
  template <class Walk>
  int First(const Walk& records, Key key, const std::string& text) {
    if (key != key_) Forget();
    key_ = key;
    CatchUp(records);
    const auto found = chains_.find(text);
    return found == chains_.end() ? kNone : found->second.first;
  }

  // The position of the next record with the same key, as of the last search.
  int Next(int position) const { return next_[static_cast<std::size_t>(position)]; }

 private:
  // The records with one key, ascending.
  struct Chain {
    int first = kNone;
    int last = kNone;
  };
  using Chains = std::unordered_map<std::string, Chain>;
  using Entry = typename Chains::value_type;

  template <class Walk>
  void CatchUp(const Walk& records) {
    for (const int position : std::exchange(stale_, {})) {
      const std::string& text = records[static_cast<std::size_t>(position)].*key_;
      if (EntryOf(position)->first == text) continue;
      Leave(position);
      Join(position, text);
    }
    chains_.reserve(records.size());
    next_.resize(records.size(), kNone);
    entries_.reserve(records.size());
    while (entries_.size() < records.size()) {
      const std::size_t position = entries_.size();
      entries_.push_back(nullptr);
      Join(static_cast<int>(position), records[position].*key_);
    }
  }

  void Join(int position, const std::string& text) {
    Entry& entry = *chains_.try_emplace(text).first;
    EntryOf(position) = &entry;
    Chain& chain = entry.second;
    const int before = chain.last < position ? chain.last : LastBefore(position, chain);
    int& link = before == kNone ? chain.first : NextOf(before);
    NextOf(position) = std::exchange(link, position);
    if (NextOf(position) == kNone) chain.last = position;
  }

  void Leave(int position) {
    Chain& chain = EntryOf(position)->second;
    const int before = LastBefore(position, chain);
    (before == kNone ? chain.first : NextOf(before)) = NextOf(position);
    if (chain.last == position) chain.last = before;
    if (chain.first == kNone) chains_.erase(chains_.find(EntryOf(position)->first));
  }

  int LastBefore(int position, const Chain& chain) {
    int before = kNone;
    for (int at = chain.first; at != kNone && at < position; at = NextOf(at)) before = at;
    return before;
  }

  int& NextOf(int position) { return next_[static_cast<std::size_t>(position)]; }
  Entry*& EntryOf(int position) { return entries_[static_cast<std::size_t>(position)]; }

  Key key_ = nullptr;
  Chains chains_;
  std::vector<Entry*> entries_;  // by position: its key and chain
  std::vector<int> next_;        // by position: the next one with its key
  std::vector<int> stale_;       // whose keys may be others by now
};

}  // namespace wheelwright
