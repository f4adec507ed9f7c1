// Opens any bytes as a definition file, saves what was opened, and opens that again.
#include "fuzz/Law.h"
#include "fuzz/OpenLaws.h"
#include "fuzz/SaveLaws.h"
#include "support/DefinitionReference.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::PlainDefinitions;
using testing::TestSession;

constexpr const char* kPath = TestSession::kDefinitionPath;

std::string ExpectedBox(const PlainDefinitions& plain) {
  if (plain.damagedLine != 0) return BoxOfDamagedLine(plain.damagedLine);
  return plain.keys.empty() ? BoxOf(380) : "";
}

// What a written line can't hold is lost: both extras of most types, the second one of a plane.
IdeEntry AsWritten(IdeEntry entry) {
  if (entry.Typ != "car") entry.Extra2.clear();
  if (entry.Typ != "car" && entry.Typ != "plane") entry.Extra1.clear();
  return entry;
}

// Lines with a comment are read and copied, and a section that isn't ended or has a second
// beginning is written otherwise than it was read.
bool IsSectionPlain(const std::string& onDisk) {
  const auto mark = onDisk.find("cars");
  return onDisk.find('#') == std::string::npos && mark == onDisk.rfind("cars") &&
         onDisk.find("\nend", mark) != std::string::npos;
}

// Without its blanks a field can look like the section's end.
bool EndsSection(const IdeEntry& entry) { return entry.ID.starts_with("end"); }

void RequireReloadable(TestSession& test, const std::string& saved) {
  std::vector<IdeEntry> expected = testing::RecordsOf(test.vars.Ides);
  std::transform(expected.begin(), expected.end(), expected.begin(), AsWritten);
  test.OpenDefinition(saved);
  RequireLoaded(test, kPath, &FrmMain::SSTab2);
  Require(testing::RecordsOf(test.vars.Kopie_Ides) == expected,
          "a saved file loads with the same fields");
}

void OpenAnyBytes(const std::string& text) {
  TestSession test;
  const std::string onDisk = NormalisedPlainly(text);
  const PlainDefinitions plain = testing::ReadDefinitionsPlainly(onDisk);
  test.OpenDefinition(text);
  RequireSameText(test.Disk(kPath), onDisk, "opening rewrites bare line feeds alone");
  Require(testing::RecordsOf(test.vars.Kopie_Ides) == plain.records,
          "the records are those of plain reading");
  if (const std::string box = ExpectedBox(plain); !box.empty()) return RequireReset(test, box);
  RequireLoaded(test, kPath, &FrmMain::SSTab2);
  Require(testing::RecordsOf(test.vars.Ides) == plain.records,
          "showing a definition changes none of its fields");
  Require(std::is_permutation(plain.keys.begin(), plain.keys.end(),
                              test.main.cmbAutos.Rows().begin(), test.main.cmbAutos.Rows().end()),
          "the list has the key of every record");
  const std::string once = Saved(test);
  RequireSameText(once, testing::WriteDefinitionsPlainly(onDisk, plain.records) + "\r\n",
                  "a save writes what plain writing writes");
  RequireDefinitionComments(onDisk, once);
  const std::string twice = Saved(test);
  if (std::any_of(plain.records.begin(), plain.records.end(), EndsSection)) return;
  RequireOnlyGrowth(twice, Saved(test), "\r\n");
  if (IsSectionPlain(onDisk)) RequireReloadable(test, once);
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::OpenAnyBytes(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
