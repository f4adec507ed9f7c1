// Finds which names of a list stand in a line, without walking the list for every line.
#pragma once

#include "core/TextIndex.h"

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// A name of the list that a line begins with or holds.
struct NameHit {
  int position;  // in the list
  bool begins;   // the line begins with the name, byte for byte

  bool operator==(const NameHit&) const = default;
};

// The hits come in the order of the list, as a walk over all names would find them. The names must
// outlive the index.
class NameIndex {
 public:
  explicit NameIndex(const std::vector<std::string>& names);

  // The names that are the beginning of the line, byte for byte; a name that is the beginning of
  // another is found in the other's line too, and an empty name in every line.
  const std::vector<NameHit>& Beginning(std::string_view line);

  // The names that the line holds anywhere, ignoring case.
  const std::vector<NameHit>& Anywhere(std::string_view line);

 private:
  void FoldNames();
  void AddFolded(std::string_view part);
  void SortHits();

  const std::vector<std::string>& names_;
  TextIndex exact_;
  std::vector<std::string> foldedNames_;
  TextIndex folded_;
  std::vector<std::size_t> lengths_;  // the lengths that names have, ascending
  std::bitset<65536> firstTwo_;       // the first two folded bytes of names
  std::bitset<256> onlyOne_;          // the folded names of one byte
  std::vector<bool> alreadyHit_;      // by the first position of a folded name
  std::vector<NameHit> hits_;
};

}  // namespace wheelwright
