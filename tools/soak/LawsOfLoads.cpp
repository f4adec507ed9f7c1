// What a load leaves behind, also one that fails, held against the plain readers.
#include "gamefiles/FileKinds.h"
#include "oracle/ColorReference.h"
#include "oracle/DefinitionReference.h"
#include "oracle/PlainTexts.h"
#include "soak/Moment.h"

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
  Require(moment.after.file.empty(), "a failed load leaves CurrentFile");
  Require(moment.after.isSaved, "a failed load leaves IsSaved false");
  Require(moment.after.vehicles.empty(), "a failed load leaves vehicles in the list");
  const bool isOff = !main.cmdSave.IsEnabled() && !main.cmdSaveAs.IsEnabled() &&
                     !main.cmdBackup.IsEnabled() && !main.cmdUndo.IsEnabled() &&
                     !main.FrameAutos.IsEnabled() && !main.SSTab1.IsEnabled() && !main.SSTab2.IsEnabled() &&
                     !main.SSTab3.IsEnabled();
  Require(isOff, "a failed load leaves commands or tabs enabled");
  Require(moment.result.ShowedError(), "a failed load says nothing");
}

void CheckReady(const Moment& moment, const FileKind& kind, std::vector<std::string> keys) {
  const FrmMain& main = moment.session.main;
  Require(moment.after.isSaved, "a load leaves IsSaved false");
  Require(moment.after.fileType == kind.type, "a load leaves another CurrentFileType");
  Require(moment.after.vehicles == SortedAsInLists(std::move(keys)), "cmbAutos isn't the file's keys");
  Require(main.cmbAutos.Row() == 0, "a load doesn't show the first vehicle");
  const bool isOn = main.cmdSave.IsEnabled() && main.cmdSaveAs.IsEnabled() && main.cmdBackup.IsEnabled() &&
                    main.cmdUndo.IsEnabled() && main.FrameAutos.IsEnabled() && (main.*kind.tabs).IsEnabled();
  Require(isOn, "a load leaves commands or tabs disabled");
}

void CheckHandling(const Moment& moment, const FileKind& kind, const ExpectedHandling& expected) {
  const testing::PlainHandling& read = expected.read;
  Require(moment.after.snapshot.cars == read.cars, "Kopie_Cars isn't what stands in the file");
  Require(moment.after.author == read.author, "txtAuthor isn't what stands in the file");
  Require(moment.after.date == read.created, "txtDate isn't what stands in the file");
  if (HasPlainMessages(moment.session.vars))
    Require(moment.session.error.lstErrors.Rows() == expected.rows, "the load problems are others");
  const bool hasProblems = read.hasOddNames || !expected.rows.empty();
  Require(moment.session.error.IsVisible() || !hasProblems, "load problems don't show their window");
  if (read.failure != 0 || read.names.empty()) return CheckReset(moment);
  CheckReady(moment, kind, read.names);
  Tables tables = moment.before.working;
  tables.cars = read.cars;
  CheckDisplay(moment, std::move(tables));
}

void CheckDefinitions(const Moment& moment, const FileKind& kind, const PlainDefinitions& read) {
  Require(moment.after.snapshot.ides == read.records, "Kopie_Ides isn't what stands in the file");
  if (read.damagedLine != 0 || read.keys.empty()) return CheckReset(moment);
  CheckReady(moment, kind, read.keys);
  Tables expected = moment.before.working;
  expected.ides = read.records;
  CheckDisplay(moment, std::move(expected));
}

void CheckColors(const Moment& moment, const FileKind& kind, const PlainColors& read) {
  Require(moment.after.snapshot.colors == read.colors, "Kopie_Colors isn't what stands in the file");
  if (read.firstPassEnded) {
    Require(moment.after.snapshot.carColors == read.carColors,
            "Kopie_CarColors isn't what stands in the file");
  }
  Require(moment.session.main.lstColors.Rows() == read.labels, "lstColors isn't the file's palette");
  const bool hasRows = moment.session.main.cmbColor1.Count() > 0;
  if (read.failure != 0 || read.damagedLine != 0 || read.keys.empty() || !hasRows) return CheckReset(moment);
  CheckReady(moment, kind, read.keys);
  Tables expected = moment.before.working;
  expected.colors = read.colors;
  expected.carColors = read.carColors;
  CheckDisplay(moment, std::move(expected));
}

}  // namespace

void CheckOpen(const Moment& moment, const ExpectedHandling* handling) {
  if (moment.step.answers.empty() || !moment.step.answers.back().is_object()) return CheckReset(moment);
  const Json& answer = moment.step.answers.back();
  const std::string file = moment.step.File();
  Require(moment.after.file == file || moment.after.file.empty(), "CurrentFile is another file");
  const std::string name = moment.folder.NameOf(file);
  if (!moment.before.disk.contains(name)) {
    Require(moment.after.file == file, "CurrentFile isn't the chosen file");
    Require(moment.after.vehicles == moment.before.vehicles, "a missing file has emptied the list");
    return;
  }
  const FileKind* kind = KindOfFile(file, answer["filter"].get<int>());
  if (kind == nullptr) {
    Require(moment.after.file == file, "CurrentFile isn't the chosen file");
    Require(moment.after.vehicles.empty(), "a file of no kind leaves vehicles in the list");
    return;
  }
  const std::string text = testing::NormalisedPlainly(moment.before.disk.at(name));
  Require(moment.after.disk.at(name) == text, "the file's line ends aren't as they should be");
  if (kind->type == kHandlingFile) return CheckHandling(moment, *kind, *handling);
  if (kind->type == kDefinitionFile)
    return CheckDefinitions(moment, *kind, testing::ReadDefinitionsPlainly(text));
  CheckColors(moment, *kind, testing::ReadColorsPlainly(text));
}

}  // namespace wheelwright::soak
