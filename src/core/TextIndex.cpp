#include "core/TextIndex.h"

#include <bit>

namespace wheelwright {

void TextIndex::Clear() {
  entries_.clear();
  buckets_.clear();
}

void TextIndex::Reserve(std::size_t texts) {
  if (texts <= buckets_.size()) return;
  entries_.reserve(texts);
  buckets_.assign(std::bit_ceil(texts), Bucket());
  for (int position = 0; position < Count(); ++position) Link(position);
}

void TextIndex::Add(std::string_view text) {
  if (entries_.size() == buckets_.size()) Reserve(2 * entries_.size() + 1);
  entries_.push_back({HashOf(text), kNone});
  Link(Count() - 1);
}

void TextIndex::Link(int position) {
  Entry& entry = entries_[static_cast<std::size_t>(position)];
  Bucket& bucket = buckets_[entry.hash & (buckets_.size() - 1)];
  (bucket.first == kNone ? bucket.first : entries_[static_cast<std::size_t>(bucket.last)].next) = position;
  bucket.last = position;
  entry.next = kNone;
}

}  // namespace wheelwright
