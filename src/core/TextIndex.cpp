#include "core/TextIndex.h"

namespace wheelwright {

void TextIndex::Reserve(std::size_t texts) {
  chains_.reserve(texts);
  next_.reserve(texts);
}

void TextIndex::Add(std::string_view text) {
  const int position = Count();
  next_.push_back(kNone);
  const auto [found, isNew] = chains_.try_emplace(text, Chain{position, position});
  if (isNew) return;
  next_[static_cast<std::size_t>(found->second.last)] = position;
  found->second.last = position;
}

int TextIndex::First(std::string_view text) const {
  const auto found = chains_.find(text);
  return found == chains_.end() ? kNone : found->second.first;
}

}  // namespace wheelwright
