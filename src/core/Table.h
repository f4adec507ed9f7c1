// A growable table of records with lower bound 0. Before its first reset it is unallocated.
#pragma once

#include "core/Failure.h"
#include "core/Numbers.h"

#include <cstddef>
#include <vector>

namespace wheelwright {

// Copying copies every record with all it owns; the copy of an unallocated table is unallocated.
template <class Record>
class Table {
 public:
  bool IsAllocated() const { return !records_.empty(); }

  // One empty record, bounds 0 to 0.
  void Reset() { records_.assign(1, Record{}); }

  // Makes the table reach up to the index, with its contents kept; never shortens it.
  void ExtendTo(int upper) {
    if (upper >= Count()) records_.resize(static_cast<std::size_t>(upper) + 1);
  }

  // The highest index. Failure 9 while the table is unallocated, failure 6 past 32,767.
  std::int16_t UpperBound() const {
    if (!IsAllocated()) throw Failure(FailureNumber::SubscriptOutOfRange);
    return Checked16(records_.size() - 1);
  }

  // The number of records, 0 while unallocated.
  int Count() const { return static_cast<int>(records_.size()); }

  // The record at an index; failure 9 for an index that isn't there.
  Record& At(int index) {
    CheckIndex(index);
    return records_[static_cast<std::size_t>(index)];
  }
  const Record& At(int index) const {
    CheckIndex(index);
    return records_[static_cast<std::size_t>(index)];
  }

  // All records in order, for a walk; failure 9 while the table is unallocated.
  std::vector<Record>& Walk() {
    CheckIndex(0);
    return records_;
  }
  const std::vector<Record>& Walk() const {
    CheckIndex(0);
    return records_;
  }

 private:
  void CheckIndex(int index) const {
    if (index < 0 || index >= Count()) throw Failure(FailureNumber::SubscriptOutOfRange);
  }

  std::vector<Record> records_;
};

// The index of the first record whose key equals the text byte for byte; -1 if none does. Failure 9
// while the table is unallocated.
template <class Record, class Text>
int FindFirst(const Table<Record>& table, std::string Record::*key, const Text& text) {
  int index = 0;
  for (const Record& record : table.Walk()) {
    if (record.*key == text) return index;
    ++index;
  }
  return -1;
}

}  // namespace wheelwright
