// All that a session knows: the open file, the tables with their snapshots, the texts of the
// language.
#pragma once

#include "core/Records.h"
#include "core/Table.h"

#include <array>
#include <cstdint>
#include <string>

namespace wheelwright {

enum FileType : std::int16_t { kHandlingFile = 0, kDefinitionFile = 1, kColorFile = 2 };

struct Vars {
  static constexpr int kLangEntries = 221;

  std::string AppPath;      // the program's directory, UTF-8, always ending in a separator
  std::string CurrentFile;  // full path of the open file, UTF-8; empty after a failed load
  std::int16_t CurrentFileType = kHandlingFile;
  std::array<std::string, kLangEntries> Lang;  // captions and messages, in the code page

  // Edits go to the working tables; a snapshot holds what the last load or save left.
  Table<Car> Cars;
  Table<Car> Kopie_Cars;
  Table<IdeEntry> Ides;
  Table<IdeEntry> Kopie_Ides;
  Table<ColorEntry> Colors;
  Table<ColorEntry> Kopie_Colors;
  Table<CarColorEntry> CarColors;
  Table<CarColorEntry> Kopie_CarColors;

  // The records on screen.
  std::int16_t CurrentCar = 0;
  std::int16_t CurrentIde = 0;
  std::int16_t CurrentCarColor = 0;

  // The two that every edit is for. Throw failure 9 when the table has no such record.
  Car& ShownCar() { return Cars.At(CurrentCar); }
  IdeEntry& ShownIde() { return Ides.At(CurrentIde); }

  bool IsSaved = true;  // true when no edit is pending
};

}  // namespace wheelwright
