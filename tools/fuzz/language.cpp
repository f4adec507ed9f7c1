// Starts with two language files of any bytes, then chooses the other one. The input: the two
// files, the stored language, a handling file that is open meanwhile.
#include "core/Failure.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/Law.h"
#include "fuzz/VehicleRows.h"
#include "language/LanguageFiles.h"
#include "support/HandlingReference.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace wheelwright::fuzz {
namespace {

using testing::TestSession;
using Lang = std::array<std::string, Vars::kLangEntries>;

std::string Replaced(std::string text, const std::string& word) {
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at)) {
    text.replace(at, word.size(), "\r\n");
  }
  return text;
}

// The number of the failure that ends the reading.
int ReadPlainly(const std::string& text, Lang& lang) {
  std::size_t entry = 0;
  for (const std::string& line : testing::PlainLines(text)) {
    if (entry == lang.size()) return 9;
    lang[entry++] = Replaced(Replaced(line, "\\n"), "\\N");
  }
  return 0;
}

void RequireApplied(const TestSession& test, const Lang& lang) {
  const FrmMain& main = test.main;
  Require(main.cmdOpen.Caption() == lang[8] && main.cmdEnde.Caption() == lang[11] &&
              main.lblGewicht.Caption() == lang[17] && main.lblAnimInfo.Caption() == lang[181] &&
              main.cmbAntrieb.Rows()[2] == lang[48] && main.cmbRearLichter.Rows()[3] == lang[90],
          "a language is applied to the main window");
  Require(test.error.lstErrors.Columns()[2] == lang[109] &&
              test.exporter.cmdExport.Caption() == lang[112],
          "a language is applied to the other windows");
}

struct Languages {
  std::string first;
  std::string second;
  std::string stored;
};

// The row chosen at the start, or the failure as a negative number.
int StartPlainly(const Languages& languages, Lang& lang) {
  if (languages.stored == "Eins" || languages.stored.empty()) {
    return -ReadPlainly(languages.first, lang);
  }
  if (languages.stored != "Zwei") return -380;
  const int failure = ReadPlainly(languages.second, lang);
  return failure == 0 ? 1 : -failure;
}

void RequireChosen(const TestSession& test, const Lang& lang, int row) {
  Require(test.main.cmbSprache.Row() == row, "the language is chosen");
  Require(test.settings.GetOr("Settings", "Language", "") == (row == 0 ? "Eins" : "Zwei"),
          "the choice is stored");
  RequireApplied(test, lang);
}

void UseAnyLanguages(const Languages& languages, const std::string& openFile) {
  TestSession test;
  test.files.contents = {{"/app/Eins.lng", languages.first}, {"/app/Zwei.lng", languages.second}};
  if (!languages.stored.empty()) test.settings.Set("Settings", "Language", languages.stored);
  test.OpenHandling(openFile);
  const auto cars = CarsOf(test.vars.Cars);
  Lang lang = test.vars.Lang;
  const int started = StartPlainly(languages, lang);
  const int failure = testing::NumberThrownBy([&] { DiscoverLanguages(test.session); });
  Require(failure == (started < 0 ? -started : 0), "the start fails as plain reading does");
  Require(test.vars.Lang == lang, "the entries are those of plain reading");
  if (failure != 0) return;
  RequireChosen(test, lang, started);
  const int other = 1 - started;
  const int expected = ReadPlainly(other == 0 ? languages.first : languages.second, lang);
  Require(testing::NumberThrownBy([&] { test.main.cmbSprache.ChooseByHand(other); }) == expected,
          "a choice fails as plain reading does");
  Require(test.vars.Lang == lang, "entries behind the file's end stay");
  Require(CarsOf(test.vars.Cars) == cars, "a language changes no vehicle");
  if (expected == 0) RequireChosen(test, lang, other);
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::FuzzInput input(data, size);
  const wheelwright::fuzz::Languages languages{input.Take(), input.Take(), input.TakeTyped()};
  wheelwright::fuzz::UseAnyLanguages(languages, input.Take());
  return 0;
}
