// Finds the positions of a text among many without walking them: a list's rows, a table's names. It
// keeps no texts; whoever searches says where they are.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace wheelwright {

class TextIndex {
 public:
  static constexpr int kNone = -1;

  int Count() const { return static_cast<int>(entries_.size()); }
  void Clear();

  // Makes room for this many texts, so that adding them takes no time for growing.
  void Reserve(std::size_t texts);

  // Adds a text at the next position, counted from 0.
  void Add(std::string_view text);

  // The first position that holds the text byte for byte, kNone if there is none. `textAt` gives
  // the text that was added at a position.
  template <class TextAt>
  int First(std::string_view text, const TextAt& textAt) const {
    const std::uint32_t hash = HashOf(text);
    return buckets_.empty() ? kNone : Find(BucketOf(hash).first, hash, text, textAt);
  }

  // The next position that holds the same text as this one, kNone if there is none.
  template <class TextAt>
  int Next(int position, const TextAt& textAt) const {
    const Entry& entry = EntryAt(position);
    return Find(entry.next, entry.hash, textAt(position), textAt);
  }

 private:
  struct Entry {
    std::uint32_t hash;
    int next;  // in the same bucket, ascending
  };
  struct Bucket {
    int first = kNone;
    int last = kNone;
  };

  static std::uint32_t HashOf(std::string_view text) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(text));
  }

  template <class TextAt>
  int Find(int position, std::uint32_t hash, std::string_view text, const TextAt& textAt) const {
    while (position != kNone &&
           (EntryAt(position).hash != hash || std::string_view(textAt(position)) != text)) {
      position = EntryAt(position).next;
    }
    return position;
  }

  const Entry& EntryAt(int position) const { return entries_[static_cast<std::size_t>(position)]; }
  const Bucket& BucketOf(std::uint32_t hash) const { return buckets_[hash & (buckets_.size() - 1)]; }
  void Link(int position);

  std::vector<Entry> entries_;   // by position
  std::vector<Bucket> buckets_;  // a power of two
};

}  // namespace wheelwright
