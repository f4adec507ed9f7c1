// Opens any bytes as a colour file, saves what was opened, and opens that again.
#include "fuzz/Law.h"
#include "fuzz/OpenLaws.h"
#include "fuzz/SaveLaws.h"
#include "support/ColorReference.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::PlainColors;
using testing::TestSession;

constexpr const char* kPath = TestSession::kColorPath;

std::string ExpectedBox(const PlainColors& plain) {
  if (plain.failure != 0) return BoxOf(plain.failure);
  if (plain.damagedLine != 0) return BoxOfDamagedLine(plain.damagedLine);
  return plain.labels.empty() || plain.keys.empty() ? BoxOf(380) : "";
}

void RequireReadAsPlainly(const TestSession& test, const PlainColors& plain) {
  const Vars& vars = test.vars;
  Require(testing::RecordsOf(vars.Kopie_Colors) == plain.colors,
          "the palette is that of plain reading");
  Require(test.main.lstColors.Rows() == plain.labels,
          "the palette's list has a row for each color");
  Require(vars.Colors.IsAllocated() == plain.firstPassEnded,
          "the palette is taken when it is read");
  if (!plain.firstPassEnded) return;
  Require(testing::RecordsOf(vars.Colors) == plain.colors, "the palette equals its snapshot");
  Require(testing::RecordsOf(vars.Kopie_CarColors) == plain.carColors,
          "the pairs are those of plain reading");
}

// The name of the last color with this number, the other name if there is none.
std::string NameOf(const PlainColors& plain, std::int16_t number, std::string other) {
  for (const ColorEntry& color : plain.colors) {
    if (color.Index == number) other = color.ColorName;
  }
  return other;
}

// A number that gives no name becomes that of the first color. Behind a named one none does.
void RepairPlainly(const PlainColors& plain, std::int16_t& number, std::string& name) {
  name = NameOf(plain, number, name);
  if (!name.empty()) return;
  number = plain.colors.front().Index;
  name = plain.colors.front().ColorName;
}

// Showing a vehicle repairs its pairs.
void ShowPlainly(PlainColors& plain, const std::string& shown) {
  for (CarColorEntry& entry : plain.carColors) {
    if (entry.ModelName != shown) continue;
    std::string first;
    std::string second;
    for (std::size_t pair = 0; pair < entry.Color1.size(); ++pair) {
      RepairPlainly(plain, entry.Color1[pair], first);
      RepairPlainly(plain, entry.Color2[pair], second);
    }
  }
}

void RequireShown(const TestSession& test, const PlainColors& plain) {
  const FrmMain& main = test.main;
  Require(testing::RecordsOf(test.vars.CarColors) == plain.carColors,
          "showing a vehicle changes no pair but such as it repairs");
  Require(main.cmbColor1.Rows() == plain.labels && main.cmbColor2.Rows() == plain.labels,
          "the pick lists offer the palette");
  Require(std::is_permutation(plain.keys.begin(), plain.keys.end(), main.cmbAutos.Rows().begin(),
                              main.cmbAutos.Rows().end()),
          "the list has the name of every vehicle");
}

std::string SavedPlainly(const std::string& onDisk, const PlainColors& plain) {
  const std::string palette = testing::WritePalettePlainly(onDisk, plain.colors);
  return testing::WritePairsPlainly(palette, plain.carColors) + "\r\n";
}

// One palette and then one section of vehicles, both ended and without a comment.
bool AreSectionsPlain(const std::string& onDisk) {
  const auto palette = onDisk.find("col");
  const auto vehicles = onDisk.find("car");
  return onDisk.find('#') == std::string::npos && palette == onDisk.rfind("col") &&
         vehicles == onDisk.rfind("car") && onDisk.find("\nend", palette) < vehicles &&
         onDisk.find("\nend", vehicles) != std::string::npos;
}

// Without its blanks a name can look like the section's end or the palette's beginning.
bool LooksLikeAMark(const CarColorEntry& entry) {
  return entry.ModelName.starts_with("end") || entry.ModelName.starts_with("col");
}

// Without comments the colors were named by their position, of which the first word comes back.
void RequireReloadable(TestSession& test, PlainColors plain, const std::string& saved) {
  for (ColorEntry& color : plain.colors) color.ColorName = "Color";
  test.OpenColors(saved);
  RequireLoaded(test, kPath, &FrmMain::SSTab3);
  Require(testing::RecordsOf(test.vars.Colors) == plain.colors,
          "a saved file loads with the same colors");
  Require(testing::RecordsOf(test.vars.CarColors) == plain.carColors,
          "a saved file loads with the same pairs");
}

void OpenAnyBytes(const std::string& text) {
  TestSession test;
  const std::string onDisk = NormalisedPlainly(text);
  PlainColors plain = testing::ReadColorsPlainly(onDisk);
  test.OpenColors(text);
  RequireSameText(test.Disk(kPath), onDisk, "opening rewrites bare line feeds alone");
  RequireReadAsPlainly(test, plain);
  if (const std::string box = ExpectedBox(plain); !box.empty()) return RequireReset(test, box);
  RequireLoaded(test, kPath, &FrmMain::SSTab3);
  ShowPlainly(plain, test.main.cmbAutos.Text());
  RequireShown(test, plain);
  const std::string once = Saved(test);
  RequireSameText(once, SavedPlainly(onDisk, plain), "a save writes what plain writing writes");
  RequireColorComments(onDisk, once);
  if (std::any_of(plain.carColors.begin(), plain.carColors.end(), LooksLikeAMark)) return;
  const std::string twice = Saved(test);
  RequireOnlyGrowth(twice, Saved(test), "\r\n\r\n");
  if (AreSectionsPlain(onDisk)) RequireReloadable(test, plain, once);
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::OpenAnyBytes(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
