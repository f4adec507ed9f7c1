// Export and import, once more and as plain as can be.
#include "core/Text.h"
#include "soak/Moment.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <utility>

namespace wheelwright::soak {
namespace {

using testing::Tokens;

constexpr std::size_t kHead = 14;
constexpr std::size_t kTokens = 33;

std::string CutBlanks(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Tokens TokensIn(std::string line) {
  std::replace(line.begin(), line.end(), '\t', ' ');
  Tokens tokens;
  for (line = CutBlanks(line); !line.empty();) {
    tokens.push_back(line.substr(0, line.find(' ')));
    line = CutBlanks(line.substr(tokens.back().size()));
  }
  return tokens;
}

Car CarFrom(const Tokens& tokens) {
  Tokens all;
  for (std::size_t i = 0; i < kTokens; ++i)
    all.push_back(i < tokens.size() ? tokens[i] : testing::kTokenRules[i].missing);
  return testing::CarOf(all);
}

void AddSorted(std::vector<std::string>& rows, const std::string& name) {
  const auto isGreater = [folded = FoldedCase(name)](const std::string& row) {
    return FoldedCase(row) > folded;
  };
  rows.insert(std::find_if(rows.begin(), rows.end(), isGreater), name);
}

void ListNames(const std::vector<std::string>& lines, std::vector<std::string>& rows) {
  for (const std::string& line : lines) {
    const std::string head = line.substr(0, kHead);
    if (line.size() <= kHead || head.find(';') != std::string::npos) continue;
    const std::string name = CutBlanks(head);
    if (std::find(rows.begin(), rows.end(), name) == rows.end()) AddSorted(rows, name);
  }
}

void AddRecords(const std::vector<std::string>& lines, const std::vector<std::string>& rows,
                std::vector<Car>& cars) {
  for (std::string line : lines) {
    for (const std::string& row : rows) {
      if (!line.starts_with(row)) continue;
      const Tokens tokens = TokensIn(line);
      line = testing::Joined(tokens);
      cars.push_back(CarFrom(tokens));
    }
  }
}

std::vector<Car> AsDisplayed(std::vector<Car> cars) {
  for (Car& car : cars) Display(car);
  return cars;
}

}  // namespace

void CheckImport(const Moment& moment) {
  const auto file = moment.before.disk.find(moment.folder.NameOf(moment.step.File()));
  if (file == moment.before.disk.end() || moment.before.working.cars.empty()) {
    Must(moment.after.working == moment.before.working, "an import of nothing has changed tables");
    return;
  }
  const std::vector<std::string> lines = testing::PlainLines(file->second);
  std::vector<std::string> rows = moment.before.vehicles;
  ListNames(lines, rows);
  Tables expected = moment.before.working;
  AddRecords(lines, rows, expected.cars);
  Must(moment.after.working.cars.size() == expected.cars.size(),
       "an import has made another count of records");
  if (moment.result.ShowedError()) return;
  Must(!moment.after.isSaved, "IsSaved after an import");
  Must(moment.session.main.cmbAutos.Row() == 0, "an import doesn't choose the first row");
  Must(AsDisplayed(moment.after.working.cars) == AsDisplayed(std::move(expected.cars)),
       "an import has made other records");
}

void CheckExport(const Moment& moment) {
  const SessionState& before = moment.before;
  const std::string vehiclesAndEnd =
      testing::WritePlainly("x\r", before.exported, before.working.cars, "", "");
  const auto banner = vehiclesAndEnd.find('\n', vehiclesAndEnd.find('\n') + 1) + 1;
  Files expected = before.disk;
  expected[moment.folder.NameOf(moment.step.File())] =
      vehiclesAndEnd.substr(0, banner) + "; Author: " + before.author + "\r\n; Created " +
      before.date +
      "\r\n;\r\n; > COMMENTS <\r\n; ------------\r\n; TWEAK AT YOUR OWN RISK\r\n;\r\n"
      "; > THE DATA <\r\n; ------------\r\n;\r\n" +
      vehiclesAndEnd.substr(banner) + "\r\n";
  Must(moment.after.disk == expected, "an export has written something else");
  Must(!moment.session.exporter.IsVisible(), "the export window stays after an export");
}

}  // namespace wheelwright::soak
