// A growable table of records with lower bound 0. Before its first reset it is unallocated.
#pragma once

#include "core/Failure.h"
#include "core/KeyIndex.h"
#include "core/Numbers.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

namespace wheelwright {

// The records of a table in order, to be read. Good until the table changes.
template <class Record>
class RecordWalk {
 public:
  using Slot = std::shared_ptr<Record>;

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Record;
    using difference_type = std::ptrdiff_t;
    using pointer = const Record*;
    using reference = const Record&;

    explicit const_iterator(const Slot* slot = nullptr) : slot_(slot) {}
    reference operator*() const { return **slot_; }
    pointer operator->() const { return slot_->get(); }
    const_iterator& operator++() {
      ++slot_;
      return *this;
    }
    const_iterator operator++(int) { return const_iterator(slot_++); }
    bool operator==(const const_iterator&) const = default;

   private:
    const Slot* slot_;
  };
  using iterator = const_iterator;
  using value_type = Record;

  explicit RecordWalk(const std::vector<Slot>& slots) : slots_(&slots) {}

  const_iterator begin() const { return const_iterator(slots_->data()); }
  const_iterator end() const { return const_iterator(slots_->data() + slots_->size()); }
  std::size_t size() const { return slots_->size(); }
  const Record& operator[](std::size_t index) const { return *(*slots_)[index]; }

 private:
  const std::vector<Slot>* slots_;
};

// Copying copies every record with all it owns; the copy of an unallocated table is unallocated. To
// make that cheap a record is shared by the copies until one of them is about to change it.
template <class Record>
class Table {
 public:
  static constexpr int kNone = KeyIndex<Record>::kNone;

  bool IsAllocated() const { return !slots_.empty(); }

  // One empty record, bounds 0 to 0.
  void Reset() {
    slots_.assign(1, std::make_shared<Record>());
    index_.Forget();
  }

  // Makes the table reach up to the index, with its contents kept; never shortens it.
  void ExtendTo(int upper) {
    while (Count() <= upper) slots_.push_back(std::make_shared<Record>());
  }

  // The highest index. Failure 9 while the table is unallocated, failure 6 past 32,767.
  std::int16_t UpperBound() const {
    if (!IsAllocated()) throw Failure(FailureNumber::SubscriptOutOfRange);
    return Checked16(slots_.size() - 1);
  }

  // The number of records, 0 while unallocated.
  int Count() const { return static_cast<int>(slots_.size()); }

  // The record at an index, to be changed; failure 9 for an index that isn't there. What was read
  // of it before may belong to another table's copy from then on.
  Record& At(int index) {
    CheckIndex(index);
    std::shared_ptr<Record>& slot = slots_[static_cast<std::size_t>(index)];
    index_.MayChange(index, *slot);
    if (slot.use_count() > 1) slot = std::make_shared<Record>(*slot);
    return *slot;
  }

  // The record at an index, to be read; failure 9 for an index that isn't there.
  const Record& At(int index) const {
    CheckIndex(index);
    return *slots_[static_cast<std::size_t>(index)];
  }

  // The index of the first record whose key equals the text byte for byte, kNone if none does;
  // failure 9 while the table is unallocated. Takes no walk over the table but the first time.
  int First(FieldText Record::*key, std::string_view text) const { return index_.First(Walk(), key, text); }

  // The index of the next record with that key, good until the next search.
  int Next(int index) const { return index_.Next(Walk(), index); }

  // All records in order; failure 9 while the table is unallocated.
  RecordWalk<Record> Walk() const {
    CheckIndex(0);
    return RecordWalk<Record>(slots_);
  }

 private:
  void CheckIndex(int index) const {
    if (index < 0 || index >= Count()) throw Failure(FailureNumber::SubscriptOutOfRange);
  }

  std::vector<std::shared_ptr<Record>> slots_;
  mutable KeyIndex<Record> index_;
};

}  // namespace wheelwright
