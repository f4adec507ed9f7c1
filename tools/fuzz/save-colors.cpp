// Saves any palette and any pairs over any template, and saves them as another file too. The input:
// the template, a line for each color (number|red|green|blue|name), a line for each vehicle
// (name|first|second|first|second ...).
#include "fuzz/FuzzInput.h"
#include "fuzz/Law.h"
#include "fuzz/SaveLaws.h"
#include "gamefiles/SaveFile.h"
#include "support/ColorReference.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::TestSession;

constexpr const char* kPath = TestSession::kColorPath;
constexpr const char* kOtherPath = "/other/carcols.dat";

std::vector<ColorEntry> ColorsIn(const std::string& text) {
  std::vector<ColorEntry> colors;
  for (const std::vector<std::string>& row : RowsOf(text)) {
    const auto number = [&](std::size_t index) { return NumberOf(FieldOr(row, index, "0")); };
    colors.push_back({number(0), number(1), number(2), number(3), FieldOr(row, 4, "")});
  }
  return colors;
}

std::vector<CarColorEntry> CarColorsIn(const std::string& text) {
  std::vector<CarColorEntry> entries;
  for (const std::vector<std::string>& row : RowsOf(text)) {
    CarColorEntry& entry = entries.emplace_back();
    entry.ModelName = row.front();
    for (std::size_t at = 1; at + 1 < row.size(); at += 2) {
      entry.Color1.push_back(NumberOf(row[at]));
      entry.Color2.push_back(NumberOf(row[at + 1]));
    }
  }
  return entries;
}

struct Tables {
  std::vector<ColorEntry> colors;
  std::vector<CarColorEntry> carColors;
};

void Prepare(TestSession& test, const std::string& onDisk, const Tables& tables) {
  test.files.contents[kPath] = onDisk;
  test.vars.CurrentFile = kPath;
  test.vars.CurrentFileType = kColorFile;
  test.vars.Colors = testing::TableOf(tables.colors);
  test.vars.CarColors = testing::TableOf(tables.carColors);
}

std::string Save(TestSession& test, const Tables& tables) {
  const std::string palette = testing::WritePalettePlainly(test.Disk(kPath), tables.colors);
  const std::string expected = testing::WritePairsPlainly(palette, tables.carColors) + "\r\n";
  SaveFile(test.session);
  RequireSameText(test.Disk(kPath), expected, "a save writes what plain writing writes");
  Require(test.vars.IsSaved && test.LastShown() == "information: E116", "the save is told");
  Require(testing::RecordsOf(test.vars.Kopie_Colors) == tables.colors &&
              testing::RecordsOf(test.vars.Kopie_CarColors) == tables.carColors,
          "a save makes the snapshots equal to the tables");
  return expected;
}

// The open file gets the new palette, the chosen file the whole.
void RequireSavedAs(TestSession& test, const Tables& tables, const std::string& expected) {
  const std::string palette = testing::WritePalettePlainly(test.Disk(kPath), tables.colors);
  test.desktop.choices.push_back(testing::FileChoice{kOtherPath, {}});
  SaveFileAs(test.session);
  RequireSameText(test.Disk(kPath), palette, "saving as another file rewrites the open palette");
  RequireSameText(test.Disk(kOtherPath), expected, "both ways of saving write the same");
  Require(test.vars.CurrentFile == kOtherPath, "the chosen file is the current one");
}

// A vehicle whose line is a comment, ends its section or begins the palette.
bool LooksForeign(const CarColorEntry& entry) {
  const std::string& name = entry.ModelName;
  return name.find('#') != std::string::npos || name.starts_with("end") || name.starts_with("col");
}

void SaveAnyTables(FuzzInput input) {
  const std::string onDisk = input.Take();
  Tables tables;
  tables.colors = ColorsIn(input.Take());
  tables.carColors = CarColorsIn(input.Take());
  TestSession test;
  Prepare(test, onDisk, tables);
  const std::string once = Save(test, tables);
  RequireColorComments(onDisk, once);
  const std::string twice = Save(test, tables);
  if (std::none_of(tables.carColors.begin(), tables.carColors.end(), LooksForeign)) {
    RequireOnlyGrowth(twice, Save(test, tables), "\r\n\r\n");
  }
  Prepare(test, onDisk, tables);
  RequireSavedAs(test, tables, once);
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::SaveAnyTables(wheelwright::fuzz::FuzzInput(data, size));
  return 0;
}
