// A table's records as a value that a test can keep and compare.
#pragma once

#include "core/Table.h"

#include <vector>

namespace wheelwright::testing {

// None while the table is unallocated.
template <class Record>
std::vector<Record> RecordsOf(const Table<Record>& table) {
  if (!table.IsAllocated()) return {};
  const RecordWalk<Record> walk = table.Walk();
  return {walk.begin(), walk.end()};
}

}  // namespace wheelwright::testing
