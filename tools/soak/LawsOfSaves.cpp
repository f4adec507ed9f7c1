// What a save or backup leaves on the disk, held against the plain writers.
#include "oracle/ColorReference.h"
#include "oracle/DefinitionReference.h"
#include "soak/Moment.h"

namespace wheelwright::soak {
namespace {

constexpr const char* kLineEnd = "\r\n";

bool IsWritable(const Moment& moment, const std::string& name) {
  return !name.empty() && name != "data/folder.cfg" && !name.starts_with("data/none/") &&
         moment.folder.NameOf(moment.step.File()) != "data/folder.cfg";
}

// The disk after a save into the target, of tables that are there.
Files ExpectedDisk(const Moment& moment, const std::string& template_, const std::string& target) {
  const SessionState& before = moment.before;
  const Tables& tables = before.working;
  Files disk = before.disk;
  if (before.fileType == kHandlingFile) {
    disk[target] =
        testing::WritePlainly(disk[template_], {before.vehicles, tables.cars, before.author, before.date}) +
        kLineEnd;
  } else if (before.fileType == kDefinitionFile) {
    disk[target] = testing::WriteDefinitionsPlainly(disk[template_], tables.ides) + kLineEnd;
  } else {
    disk[template_] = testing::WritePalettePlainly(disk[template_], tables.colors);
    disk[target] = testing::WritePairsPlainly(disk[template_], tables.carColors) + kLineEnd;
  }
  return disk;
}

bool HasTables(const SessionState& held) {
  if (held.fileType == kHandlingFile) return !held.working.cars.empty();
  if (held.fileType == kDefinitionFile) return !held.working.ides.empty();
  return !held.working.colors.empty() && !held.working.carColors.empty();
}

void CheckSnapshots(const Moment& moment) {
  const SessionState& after = moment.after;
  Tables expected = moment.before.snapshot;
  if (after.fileType == kHandlingFile) expected.cars = after.working.cars;
  if (after.fileType == kDefinitionFile) expected.ides = after.working.ides;
  if (after.fileType == kColorFile) {
    expected.colors = after.working.colors;
    expected.carColors = after.working.carColors;
  }
  Require(after.snapshot == expected, "the snapshots after a save aren't the tables");
}

}  // namespace

void CheckSave(const Moment& moment) {
  const SessionState& before = moment.before;
  const SessionState& after = moment.after;
  const bool isSaveAs = moment.step.Clicks("cmdSaveAs");
  const std::string source = moment.folder.NameOf(before.file);
  const std::string target = isSaveAs ? moment.folder.NameOf(moment.step.File()) : source;
  Require(after.working == before.working, "a save has changed the tables");
  if (!before.disk.contains(source)) {
    Require(after.disk == before.disk, "a save without its template has written");
    Require(after.isSaved == before.isSaved, "a save without its template has changed IsSaved");
    return;
  }
  if (!HasTables(before)) return;
  if (!IsWritable(moment, target)) {
    Require(isSaveAs && moment.result.ShowedError(), "a save that can't be says nothing");
    Require(after.isSaved == before.isSaved, "a failed save has changed IsSaved");
    Require(after.file == before.file, "a failed save has changed CurrentFile");
    return;
  }
  Require(moment.result.ShowedInformation(), "a save says nothing");
  Require(after.isSaved, "IsSaved is false after a save");
  Require(after.disk == ExpectedDisk(moment, source, target), "a save has written something else");
  Require(after.file == moment.folder.PathOf(target), "CurrentFile isn't the saved file");
  CheckSnapshots(moment);
}

void CheckBackup(const Moment& moment) {
  const SessionState& before = moment.before;
  Files expected = before.disk;
  const std::string source = moment.folder.NameOf(before.file);
  if (before.disk.contains(source)) expected[source + ".backup"] = before.disk.at(source);
  Require(moment.after.disk == expected, "a backup isn't a copy of the file");
}

}  // namespace wheelwright::soak
