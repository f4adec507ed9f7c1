// What a load leaves behind, held against the plain readers.
#include "gamefiles/FileKinds.h"
#include "soak/Moment.h"
#include "support/ColorReference.h"
#include "support/DefinitionReference.h"

#include <algorithm>
#include <utility>

namespace wheelwright::soak {
namespace {

using testing::PlainColors;
using testing::PlainDefinitions;

// The rows name their messages as the languages of most sessions do.
bool HasPlainMessages(const Vars& vars) {
  return vars.Lang[102] == "E102" && vars.Lang[103] == "E103" && vars.Lang[104] == "E104" &&
         vars.Lang[105] == "E105";
}

void CheckReset(const Moment& moment) {
  const FrmMain& main = moment.session.main;
  Must(moment.after.file.empty(), "a failed load leaves CurrentFile");
  Must(moment.after.isSaved, "a failed load leaves IsSaved false");
  Must(moment.after.vehicles.empty(), "a failed load leaves vehicles in the list");
  const bool isOff = !main.cmdSave.IsEnabled() && !main.cmdSaveAs.IsEnabled() &&
                     !main.cmdBackup.IsEnabled() && !main.cmdUndo.IsEnabled() &&
                     !main.FrameAutos.IsEnabled() && !main.SSTab1.IsEnabled() &&
                     !main.SSTab2.IsEnabled() && !main.SSTab3.IsEnabled();
  Must(isOff, "a failed load leaves commands or tabs enabled");
  Must(moment.result.ShowedError(), "a failed load says nothing");
}

void CheckReady(const Moment& moment, const FileKind& kind, std::vector<std::string> keys) {
  const FrmMain& main = moment.session.main;
  Must(moment.after.isSaved, "a load leaves IsSaved false");
  Must(moment.after.fileType == kind.type, "a load leaves another CurrentFileType");
  Must(moment.after.vehicles == SortedAsInLists(std::move(keys)), "cmbAutos isn't the file's keys");
  Must(main.cmbAutos.Row() == 0, "a load doesn't show the first vehicle");
  const bool isOn = main.cmdSave.IsEnabled() && main.cmdSaveAs.IsEnabled() &&
                    main.cmdBackup.IsEnabled() && main.cmdUndo.IsEnabled() &&
                    main.FrameAutos.IsEnabled() && (main.*kind.tabs).IsEnabled();
  Must(isOn, "a load leaves commands or tabs disabled");
}

void CheckHandling(const Moment& moment, const FileKind& kind, const ExpectedHandling& expected) {
  const testing::PlainHandling& read = expected.read;
  if (read.failure != 0 || read.names.empty()) return CheckReset(moment);
  CheckReady(moment, kind, read.names);
  Must(moment.after.snapshot.cars == read.records, "Kopie_Cars isn't what stands in the file");
  Must(moment.after.author == read.author, "txtAuthor isn't what stands in the file");
  Must(moment.after.date == read.date, "txtDate isn't what stands in the file");
  if (HasPlainMessages(moment.session.vars))
    Must(moment.session.error.lstErrors.Rows() == expected.rows, "the load problems are others");
  Tables tables = moment.before.working;
  tables.cars = read.records;
  CheckDisplay(moment, std::move(tables));
}

void CheckDefinitions(const Moment& moment, const FileKind& kind, const PlainDefinitions& read) {
  if (read.damagedLine != 0 || read.keys.empty()) return CheckReset(moment);
  CheckReady(moment, kind, read.keys);
  Must(moment.after.snapshot.ides == read.records, "Kopie_Ides isn't what stands in the file");
  Tables expected = moment.before.working;
  expected.ides = read.records;
  CheckDisplay(moment, std::move(expected));
}

void CheckColors(const Moment& moment, const FileKind& kind, const PlainColors& read) {
  const bool hasRows = moment.session.main.cmbColor1.Count() > 0;
  if (read.failure != 0 || read.damagedLine != 0 || read.keys.empty() || !hasRows)
    return CheckReset(moment);
  CheckReady(moment, kind, read.keys);
  Must(moment.after.snapshot.colors == read.colors, "Kopie_Colors isn't what stands in the file");
  Must(moment.after.snapshot.carColors == read.carColors,
       "Kopie_CarColors isn't what stands in the file");
  Must(moment.session.main.lstColors.Rows() == read.labels, "lstColors isn't the file's palette");
  Tables expected = moment.before.working;
  expected.colors = read.colors;
  expected.carColors = read.carColors;
  CheckDisplay(moment, std::move(expected));
}

}  // namespace

// A line end is a carriage return, with or without a line feed; a text that has other line feeds is
// joined and cut at those.
std::string TextForReader(const Files& disk, const std::string& name) {
  const auto file = disk.find(name);
  if (file == disk.end()) return "";
  std::string joined;
  for (const std::string& line : testing::PlainLines(file->second)) joined += line;
  if (joined.find('\n') == std::string::npos) return file->second;
  std::string text;
  for (const char byte : joined) text += byte == '\n' ? std::string("\r\n") : std::string(1, byte);
  return text + "\r\n";
}

void CheckOpen(const Moment& moment, const ExpectedHandling* handling) {
  if (moment.step.answers.empty() || !moment.step.answers.back().is_object())
    return CheckReset(moment);
  const Json& answer = moment.step.answers.back();
  const std::string file = moment.step.File();
  Must(moment.after.file == file || moment.after.file.empty(), "CurrentFile is another file");
  const std::string name = moment.folder.NameOf(file);
  if (!moment.before.disk.contains(name)) {
    Must(moment.after.file == file, "CurrentFile isn't the chosen file");
    Must(moment.after.vehicles == moment.before.vehicles, "a missing file has emptied the list");
    return;
  }
  const FileKind* kind = KindOfFile(file, answer["filter"].get<int>());
  if (kind == nullptr) {
    Must(moment.after.file == file, "CurrentFile isn't the chosen file");
    Must(moment.after.vehicles.empty(), "a file of no kind leaves vehicles in the list");
    return;
  }
  const std::string text = TextForReader(moment.before.disk, name);
  Must(moment.after.disk.at(name) == text, "the file's line ends aren't as they should be");
  if (kind->type == kHandlingFile) return CheckHandling(moment, *kind, *handling);
  if (kind->type == kDefinitionFile)
    return CheckDefinitions(moment, *kind, testing::ReadDefinitionsPlainly(text));
  CheckColors(moment, *kind, testing::ReadColorsPlainly(text));
}

}  // namespace wheelwright::soak
