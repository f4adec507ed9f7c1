// default.ide. Only the lines between "cars" and "end" are read.
//
//   cars
//   131, harrow, harrow, car, HARROW, HARROW, null, normal, 10, 7, 0, 250, 0.8   # comment
//   end
#pragma once

#include "core/Records.h"
#include "formats/Sections.h"

#include <array>
#include <string>
#include <string_view>

namespace wheelwright {

struct DefinitionValue {
  const char* name;  // as the record calls it
  FieldText IdeEntry::*value;
  std::string_view separator;       // what is written behind it
  bool tabBehindShortText = false;  // one tab more behind fewer than seven characters
};

// The thirteen fields in the order of a line.
extern const std::array<DefinitionValue, 13> kDefinitionValues;

// The names are the handling IDs.
using DefinitionFile = RecordSection<IdeEntry>;

// Failures as those of ReadSection.
void ReadDefinitions(std::string_view text, DefinitionFile& file);

// The new text of a file, without the line end of the final write: the whole table takes the place
// of the first line without a "#" in the section of the file as it lies on disk.
std::string WriteDefinitions(std::string_view onDisk, const Table<IdeEntry>& ides);

}  // namespace wheelwright
