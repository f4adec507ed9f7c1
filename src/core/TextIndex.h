// Finds the positions of a text among many without walking them: a list's rows, a table's names.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace wheelwright {

class TextIndex {
 public:
  static constexpr int kNone = -1;

  // Makes room for this many texts, so that adding them takes no time for growing.
  void Reserve(std::size_t texts);

  // Adds a text at the next position, counted from 0. The text isn't copied and must outlive the
  // index.
  void Add(std::string_view text);

  // The first position that holds the text byte for byte, kNone if there is none.
  int First(std::string_view text) const;

  // The next position that holds the same text as this one, kNone if there is none.
  int Next(int position) const { return next_[static_cast<std::size_t>(position)]; }

  int Count() const { return static_cast<int>(next_.size()); }

 private:
  struct Chain {
    int first;
    int last;
  };
  std::unordered_map<std::string_view, Chain> chains_;
  std::vector<int> next_;
};

}  // namespace wheelwright
