// Saves any table of definitions over any template. The input: the template, a line for each
// definition with its fields between "|".
#include "fuzz/FuzzInput.h"
#include "fuzz/Law.h"
#include "fuzz/SaveLaws.h"
#include "gamefiles/SaveFile.h"
#include "support/DefinitionReference.h"
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

constexpr const char* kPath = TestSession::kDefinitionPath;

std::vector<IdeEntry> IdesIn(const std::string& text) {
  std::vector<IdeEntry> ides;
  for (const std::vector<std::string>& row : RowsOf(text)) {
    const auto field = [&](std::size_t index) { return FieldOr(row, index, ""); };
    ides.push_back(IdeEntry{field(0), field(1), field(2), field(3), field(4), field(5), field(6),
                            field(7), field(8), field(9), field(10), field(11), field(12)});
  }
  return ides;
}

void Prepare(TestSession& test, FuzzInput& input) {
  test.files.contents[kPath] = input.Take();
  test.vars.CurrentFile = kPath;
  test.vars.CurrentFileType = kDefinitionFile;
  test.vars.Ides = testing::TableOf(IdesIn(input.Take()));
}

std::string Save(TestSession& test) {
  const std::vector<IdeEntry> ides = testing::RecordsOf(test.vars.Ides);
  const std::string expected = testing::WriteDefinitionsPlainly(test.Disk(kPath), ides) + "\r\n";
  SaveFile(test.session);
  RequireSameText(test.Disk(kPath), expected, "a save writes what plain writing writes");
  Require(test.vars.IsSaved && test.LastShown() == "information: E116", "the save is told");
  Require(testing::RecordsOf(test.vars.Kopie_Ides) == ides,
          "a save makes the snapshot equal to the table");
  return expected;
}

// A definition whose line is a comment or ends the section.
bool LooksForeign(const IdeEntry& entry) {
  return testing::TextOf(entry).find('#') != std::string::npos || entry.ID.starts_with("end");
}

void SaveAnyTable(FuzzInput input) {
  TestSession test;
  Prepare(test, input);
  const std::string onDisk = test.Disk(kPath);
  const std::vector<IdeEntry> ides = testing::RecordsOf(test.vars.Ides);
  RequireDefinitionComments(onDisk, Save(test));
  const std::string twice = Save(test);
  if (std::any_of(ides.begin(), ides.end(), LooksForeign)) return;
  RequireOnlyGrowth(twice, Save(test), "\r\n");
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::SaveAnyTable(wheelwright::fuzz::FuzzInput(data, size));
  return 0;
}
