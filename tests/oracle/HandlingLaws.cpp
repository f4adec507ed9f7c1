#include "formats/HandlingFile.h"
#include "oracle/FormatLaws.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/SaveLaws.h"
#include "support/TableRecords.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <sstream>

namespace wheelwright::testing {
namespace {

struct Read {
  explicit Read(const std::string& text) : failure(NumberThrownBy([&] { ReadHandling(text, file); })) {}

  std::string Saved(const std::string& onDisk) const {
    return WriteHandling(onDisk, {file.names, file.cars, file.author, file.created}) + "\r\n";
  }

  HandlingFile file;
  int failure;
};

bool IsForeign(const std::string& line) {
  return line.substr(0, 14).find_first_of(";%!$") != std::string::npos;
}

// Comments and special lines, but for those that name the author, the date or the program.
void RequireCommentsKept(const std::string& onDisk, const std::string& saved) {
  std::vector<std::string> kept;
  for (const std::string& line : PlainLines(onDisk)) {
    const bool isOurs =
        HoldsInAnyCase(line, "author") || HoldsInAnyCase(line, "created") || HoldsInAnyCase(line, "homepage");
    if (IsForeign(line) && !isOurs) kept.push_back(line);
  }
  RequireInOrder(kept, saved);
}

// A name or mass that holds a comment's or special line's mark makes the vehicle's line one.
bool LooksForeign(const Car& car) {
  return (car.CarName + car.Mass).find_first_of(";%!$") != std::string::npos;
}

// The tokens of every vehicle that the list names, in the order of the list.
std::vector<Tokens> ListedTokens(const HandlingFile& file) {
  const std::vector<Tokens> all = TokensOf(file.cars);
  std::vector<Tokens> listed;
  for (const std::string& name : file.names) {
    std::copy_if(all.begin(), all.end(), std::back_inserter(listed),
                 [&](const Tokens& tokens) { return tokens[0] == name; });
  }
  return listed;
}

void RequireTokensInLines(const std::string& saved, const std::vector<Tokens>& vehicles) {
  std::vector<Tokens> found;
  for (const std::string& line : PlainLines(saved)) {
    if (IsForeign(line) || line.empty()) continue;
    Tokens& tokens = found.emplace_back();
    std::istringstream parts(line);
    for (std::string token; std::getline(parts, token, ' ');) {
      if (!token.empty()) tokens.push_back(token);
    }
  }
  Require(found == vehicles, "every token comes through a save unchanged");
}

bool HoldsAMark(const Tokens& tokens) { return Joined(tokens).find_first_of("%!$") != std::string::npos; }

// Each vehicle has one name and one line, and no name is found in another vehicle's line or in
// front of a comment or special line.
bool AreNamesClear(const HandlingFile& file, const std::string& saved) {
  const std::vector<std::string> records = NamesOf(file.cars);
  const std::vector<std::string>& names = file.names;
  const std::vector<std::string> lines = PlainLines(saved);
  for (const std::string& name : names) {
    const auto beginsSo = [&](const std::string& text) { return text.starts_with(name); };
    if (std::count_if(names.begin(), names.end(), beginsSo) != 1) return false;
    if (std::count_if(lines.begin(), lines.end(), beginsSo) != 1) return false;
  }
  return std::is_permutation(records.begin(), records.end(), names.begin(), names.end());
}

}  // namespace

void RequireHandlingRead(const std::string& text) {
  const auto [file, failure] = Read(text);
  const PlainHandling plain = ReadPlainly(text);
  Require(failure == plain.failure, "reading fails as plain reading does");
  Require(file.names == plain.names, "the names are those of plain reading");
  RequireSameText(file.author, plain.author, "the author is read");
  RequireSameText(file.created, plain.created, "the date is read");
  Require(file.problems == plain.problems, "the problems are those of plain reading");
  Require(file.hasOddNames == plain.hasOddNames, "names that fail their check are told");
  Require(RecordsOf(file.cars) == plain.cars, "the records are those of plain reading");
}

void RequireHandlingWritten(const std::string& onDisk, const PlainVehicles& vehicles) {
  const Table<Car> cars = TableOf(vehicles.cars);
  const WrittenVehicles written{vehicles.names, cars, vehicles.author, vehicles.created};
  std::string text = onDisk;
  for (int save = 1; save <= 3; ++save) {
    const std::string earlier = text;
    text = WriteHandling(earlier, written);
    RequireSameText(text, WritePlainly(earlier, vehicles), "a save writes what plain writing writes");
    text += "\r\n";
    if (save == 1) RequireCommentsKept(onDisk, text);
  }
  if (std::any_of(vehicles.cars.begin(), vehicles.cars.end(), LooksForeign)) return;
  RequireSameText(WriteHandling(text, written) + "\r\n", text, "a fourth save changes nothing");
}

void RequireHandlingSaved(const std::string& bytes) {
  const std::string text = NormalisedPlainly(bytes);
  const Read read(text);
  if (read.failure != 0 || read.file.names.empty()) return;
  const std::string once = read.Saved(text);
  const std::string twice = read.Saved(once);
  // A written date that holds "Author:" is taken for an author's line the next time.
  if (!HoldsInAnyCase(read.file.created, "author:")) RequireOnlyGrowth(once, twice, "\r\n");
  RequireSameText(read.Saved(twice), twice, "a third save changes nothing");
  const std::vector<Tokens> listed = ListedTokens(read.file);
  RequireTokensInLines(once, listed);
  if (std::any_of(listed.begin(), listed.end(), HoldsAMark) || !AreNamesClear(read.file, once)) return;
  Require(TokensOf(Read(once).file.cars) == listed, "a saved file loads with the same tokens");
}

void RequireTidyHandlingKept(const std::string& text) {
  const Read read(text);
  Require(read.failure == 0 && !read.file.names.empty(), "a tidy file loads");
  std::vector<Car> records = RecordsOf(read.file.cars);
  std::sort(records.begin(), records.end(),
            [](const Car& left, const Car& right) { return left.CarName.View() < right.CarName.View(); });
  Require(RecordsOf(Read(read.Saved(text)).file.cars) == records, "a saved file loads with the same records");
  RequireHandlingSaved(text);
}

}  // namespace wheelwright::testing
