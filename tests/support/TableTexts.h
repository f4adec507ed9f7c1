// Tables as short texts: a test compares whole tables, and a failure shows them.
#pragma once

#include "core/Records.h"
#include "core/Table.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::testing {

using Texts = std::vector<std::string>;

// "130|pipita|pipita|car|PIPITA|PIPITA|null|normal|30|7|0|256|0.7"
std::string TextOf(const IdeEntry& entry);
// The number, the components and the name: "7: 5,10,15 navy"
std::string TextOf(const ColorEntry& entry);
// The name and the pairs: "pipita 36,26 1,1"
std::string TextOf(const CarColorEntry& entry);

// A text for each record; none for an unallocated table.
template <class Record>
Texts TextsOf(const Table<Record>& table) {
  Texts texts;
  for (int index = 0; index < table.Count(); ++index) texts.push_back(TextOf(table.At(index)));
  return texts;
}

template <class Record>
Table<Record> TableOf(const std::vector<Record>& records) {
  Table<Record> table;
  for (const Record& record : records) {
    const int next = table.Count();
    table.ExtendTo(next);
    table.At(next) = record;
  }
  return table;
}

// The lines joined, each closed by carriage return and line feed.
std::string CrLf(std::initializer_list<std::string_view> lines);

// The two lines on top of a saved definition or colour file.
inline constexpr const char* kBanner =
    "# File created with Wheelwright V1.0.0\r\n"
    "# Homepage: https://wheelwright.example/\r\n";

}  // namespace wheelwright::testing
