// Opens any bytes as a handling file, saves what was opened, and opens that again.
#include "core/Text.h"
#include "fuzz/Law.h"
#include "fuzz/OpenLaws.h"
#include "fuzz/SaveLaws.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::PlainHandling;
using testing::TestSession;
using testing::Tokens;

constexpr const char* kPath = TestSession::kHandlingPath;

std::string ExpectedBox(const PlainHandling& plain) {
  if (plain.failure != 0) return BoxOf(plain.failure);
  return plain.names.empty() ? BoxOf(380) : "";
}

void RequireReadAsPlainly(TestSession& test, const PlainHandling& plain,
                          const std::vector<ReportList::Row>& rows) {
  RequireSameText(test.main.txtAuthor.Text(), plain.author, "the author is read");
  RequireSameText(test.main.txtDate.Text(), plain.date, "the date is read");
  Require(test.error.lstErrors.Rows() == rows, "the load problems are those of plain reading");
  Require(test.error.IsVisible() == (plain.hasOddNames || !rows.empty()),
          "load problems show their window");
  Require(testing::RecordsOf(test.vars.Kopie_Cars) == plain.records,
          "the records are those of plain reading");
}

// For the vehicle on screen short flags are filled up; no token of a line is empty, but all of the
// one record that stays without a line are.
void RequireShownUnchanged(const TestSession& test) {
  std::vector<Tokens> expected = testing::TokensOf(test.vars.Kopie_Cars);
  Tokens& shown = expected[static_cast<std::size_t>(test.vars.CurrentCar)];
  if (shown[19].empty()) shown[19] = "0";
  while (shown[30].size() < 7) shown[30].insert(0, 1, '0');
  const std::vector<Tokens> found = testing::TokensOf(test.vars.Cars);
  Require(found.size() == expected.size(), "table and snapshot are equally long after a load");
  for (std::size_t car = 0; car < found.size(); ++car) {
    RequireSameText(testing::Joined(found[car]), testing::Joined(expected[car]),
                    "showing a vehicle changes none of its tokens");
  }
}

// The 33 tokens of every vehicle that the list names, in the order of the list.
std::vector<Tokens> ListedTokens(const TestSession& test) {
  const std::vector<Tokens> all = testing::TokensOf(test.vars.Cars);
  std::vector<Tokens> listed;
  for (const std::string& name : test.main.cmbAutos.Rows()) {
    std::copy_if(all.begin(), all.end(), std::back_inserter(listed),
                 [&](const Tokens& tokens) { return tokens[0] == name; });
  }
  return listed;
}

bool HoldsAMark(const Tokens& tokens) {
  return testing::Joined(tokens).find_first_of("%!$") != std::string::npos;
}

// Each vehicle has one entry and one line, and no entry is found in another vehicle's line or in
// front of a comment or special line.
bool AreNamesClear(const TestSession& test, const std::string& saved) {
  const std::vector<std::string> records = testing::NamesOf(test.vars.Cars);
  const std::vector<std::string>& rows = test.main.cmbAutos.Rows();
  for (const std::string& row : rows) {
    const auto beginsWithRow = [&](const std::string& text) { return text.starts_with(row); };
    const std::vector<std::string> lines = testing::PlainLines(saved);
    if (std::count_if(rows.begin(), rows.end(), beginsWithRow) != 1) return false;
    if (std::count_if(lines.begin(), lines.end(), beginsWithRow) != 1) return false;
  }
  return std::is_permutation(records.begin(), records.end(), rows.begin(), rows.end());
}

void RequireSavedTokens(TestSession& test, const std::string& saved) {
  const std::vector<Tokens> listed = ListedTokens(test);
  RequireTokensInLines(saved, listed);
  const bool comesBack =
      AreNamesClear(test, saved) && std::none_of(listed.begin(), listed.end(), HoldsAMark);
  if (!comesBack) return;
  test.OpenHandling(saved);
  RequireLoaded(test, kPath, &FrmMain::SSTab1);
  Require(testing::TokensOf(test.vars.Cars) == listed, "a saved file loads with the same tokens");
}

void OpenAnyBytes(const std::string& text) {
  TestSession test;
  const std::string onDisk = NormalisedPlainly(text);
  const PlainHandling plain = testing::ReadPlainly(onDisk);
  const std::vector<ReportList::Row> rows = testing::RowsOf(plain.problems, test.main);
  test.OpenHandling(text);
  RequireSameText(test.Disk(kPath), onDisk, "opening rewrites bare line feeds alone");
  RequireReadAsPlainly(test, plain, rows);
  if (const std::string box = ExpectedBox(plain); !box.empty()) return RequireReset(test, box);
  RequireLoaded(test, kPath, &FrmMain::SSTab1);
  Require(test.main.cmbAutos.Rows() == plain.names, "the list is that of plain reading");
  RequireShownUnchanged(test);
  const std::string once = Saved(test);
  RequireHandlingComments(onDisk, once);
  const std::string twice = Saved(test);
  // A written date that holds "Author:" is taken for an author's line the next time.
  if (!HoldsIgnoringCase(plain.date, "author:")) RequireOnlyGrowth(once, twice, "\r\n");
  RequireSameText(Saved(test), twice, "a third save changes nothing");
  RequireSavedTokens(test, once);
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::OpenAnyBytes(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
