#include "soak/Laws.h"

#include "oracle/PlainTexts.h"
#include "replay/Names.h"
#include "support/VehicleTokens.h"

#include <set>
#include <string>
#include <utility>

namespace wheelwright::soak {
namespace {

using Names = std::set<std::string>;

const Names kReachingTheDisk = {"cmdOpen",       "cmdSave", "cmdSaveAs", "cmdBackup", "frmExport.cmdExport",
                                "frmExport.Spez"};

const Names kNeverEndingByFailure = {"cmdOpen",
                                     "cmdSaveAs",
                                     "cmdUndo",
                                     "cmdBackup",
                                     "cmdNewCar",
                                     "cmdDeleteCar",
                                     "cmdNewColor",
                                     "cmdDeleteColor",
                                     "cmdImportCar",
                                     "cmdExportCar",
                                     "cmdHelp",
                                     "cmdInfo",
                                     "cmdEnde",
                                     "frmExport.cmdExport",
                                     "frmExport.cmdAdd",
                                     "frmExport.cmdDel",
                                     "frmExport.cmdAddAll",
                                     "frmExport.cmdDelAll",
                                     "frmExport.lst1",
                                     "frmExport.lst2",
                                     "frmExport.cmdClose",
                                     "frmError.cmdClose",
                                     "SSTab1",
                                     "SSTab2",
                                     "frmMain",
                                     "frmExport",
                                     "frmError",
                                     "txtAuthor",
                                     "txtDate"};

const Names kEditingNothing = {"cmdHelp",
                               "cmdInfo",
                               "cmdEnde",
                               "cmdExportCar",
                               "cmdBackup",
                               "cmdSave",
                               "cmdSaveAs",
                               "frmError.cmdClose",
                               "frmExport.cmdAdd",
                               "frmExport.cmdDel",
                               "frmExport.cmdAddAll",
                               "frmExport.cmdDelAll",
                               "frmExport.cmdExport",
                               "frmExport.cmdClose",
                               "frmExport.lst1",
                               "frmExport.lst2",
                               "frmExport.Spez",
                               "SSTab1",
                               "SSTab2",
                               "SSTab3",
                               "cmbColor1",
                               "cmbColor2",
                               "lstCarColors",
                               "frmMain",
                               "frmExport",
                               "frmError"};

// A person's choice in one of these is an edit, also that of the row that is shown.
const Names kAlwaysEditing = {"cmbAntrieb", "cmbMotor",  "cmbFrontLichter", "cmbRearLichter",
                              "cmbAnim",    "cmbKlasse", "cmbTyp",          "cmbExtra1"};

bool LiesOn(const Control* control, const TabGroup& group) {
  while (control != nullptr && control != &group) control = control->Container();
  return control != nullptr;
}

// Whether the screen shows a record that the action at the control works on.
bool WorksOnShownRecord(Session& session, const Step& step, const Shown& shown) {
  const Control* control = replay::FindControl(session, step.control);
  if (step.isForced || control == nullptr) return false;
  return (shown.handling && LiesOn(control, session.main.SSTab1)) ||
         (shown.definition && LiesOn(control, session.main.SSTab2));
}

void CheckEnd(Session& session, const Step& step, const StepResult& result, const Shown& shown) {
  if (result.End() == "quit") {
    Require(step.control == "cmdEnde" || step.control == "frmMain", "the program has ended unasked");
  } else {
    Require(!kNeverEndingByFailure.contains(step.control), "a failure has left a guarded handler");
    Require(!WorksOnShownRecord(session, step, shown), "a failure has left an edit");
  }
}

void CheckNothingHappened(const SessionState& before, const SessionState& after, const std::string& what) {
  Require(after.working == before.working, what + " has changed the tables");
  Require(after.snapshot == before.snapshot, what + " has changed the snapshots");
  Require(after.isSaved == before.isSaved, what + " has changed IsSaved");
  Require(after.file == before.file, what + " has changed CurrentFile");
  Require(after.disk == before.disk, what + " has changed the disk");
}

void CheckWhatMayChange(const Step& step, const StepResult& result, const SessionState& before,
                        const SessionState& after) {
  const bool opens = step.control == "cmdOpen";
  const bool saves = step.control == "cmdSave" || step.control == "cmdSaveAs";
  if (!opens && !saves) {
    Require(after.snapshot == before.snapshot, "the snapshots have changed");
    Require(before.isSaved || !after.isSaved, "IsSaved has become true");
  }
  if (!opens && step.control != "cmdSaveAs") Require(after.file == before.file, "CurrentFile has changed");
  if (kEditingNothing.contains(step.control))
    Require(after.working == before.working, "the tables have changed");
  if (kEditingNothing.contains(step.control) && !saves)
    Require(after.isSaved == before.isSaved, "IsSaved has changed");
  if (kAlwaysEditing.contains(step.control)) Require(!after.isSaved, "IsSaved after a choice");
  const bool displays = step.control == "cmbAutos" || step.control == "cmbSprache";
  if (displays) Require(after.isSaved == before.isSaved, "a display has changed IsSaved");
  if (opens || saves || displays || step.control == "cmdUndo" || step.control == "chkFlag3") return;
  if (result.ShowedError()) return;
  const bool isEdited =
      after.working != before.working || after.author != before.author || after.date != before.date;
  if (isEdited) Require(!after.isSaved, "IsSaved after an edit");
}

void CheckCommand(const Moment& moment, const ExpectedHandling* handling) {
  const Step& step = moment.step;
  const bool isWell = !moment.result.ShowedError();
  if (step.Clicks("cmdOpen")) CheckOpen(moment, handling);
  if (step.Clicks("cmdSave") || step.Clicks("cmdSaveAs")) CheckSave(moment);
  if (step.Clicks("cmdBackup") && isWell && !moment.before.file.empty()) CheckBackup(moment);
  if (step.Clicks("cmdUndo") && isWell) CheckRevert(moment);
  if (step.Clicks("cmdNewCar") && isWell) CheckAddedVehicle(moment);
  if (step.Clicks("cmdDeleteCar") && isWell) CheckDeletedVehicle(moment);
  if (step.Clicks("cmdImportCar")) CheckImport(moment);
  if (step.Clicks("frmExport.cmdExport") && isWell && !moment.before.exported.empty()) CheckExport(moment);
  const bool displays = step.control == "cmbAutos" || step.control == "cmbSprache";
  if (displays && !moment.before.vehicles.empty()) CheckDisplay(moment, moment.before.working);
}

}  // namespace

Laws::Laws(replay::Stage& stage, const Folder& folder)
    : stage_(stage), folder_(folder), held_(StateOf(stage.session, folder.Contents())) {}

void Laws::Before(const Step& step) {
  expectedHandling_.reset();
  const std::string name = folder_.NameOf(step.File());
  if (step.Clicks("cmdOpen") && held_.disk.contains(name)) {
    const auto read = testing::ReadPlainly(testing::NormalisedPlainly(held_.disk.at(name)));
    expectedHandling_ = {read, testing::RowsOf(read.problems, stage_.session.main)};
  }
}

void Laws::After(const Step& step, const StepResult& result) {
  if (!result.WasRefused())
    Require(result.Asked() == step.answers.size(), "the program has asked something else");
  if (!result.End().empty()) return CheckEnd(stage_.session, step, result, shown_);
  Require(stage_.desktop.CurrentPointer() == Pointer::Normal, "the hourglass stays");
  const bool reachesDisk = kReachingTheDisk.contains(step.control) && !result.WasRefused();
  SessionState after = StateOf(stage_.session, reachesDisk ? folder_.Contents() : held_.disk);
  const Moment moment{step, result, held_, after, stage_.session, folder_};
  if (result.WasRefused()) {
    CheckNothingHappened(held_, after, "a refused action");
  } else if (result.WasDeclined()) {
    CheckNothingHappened(held_, after, "a declined question");
  } else {
    CheckWhatMayChange(step, result, held_, after);
    CheckCommand(moment, expectedHandling_ ? &*expectedHandling_ : nullptr);
    NoteWhatIsShown(moment);
  }
  CheckBoxesAndFields(stage_.session, shown_);
  held_ = std::move(after);
}

void Laws::AtEnd() {
  const bool hasEnded = stage_.desktop.EndWasAsked() || stage_.edge.HasFailed();
  if (!hasEnded) Require(folder_.Contents() == held_.disk, "something has written unasked");
}

void Laws::NoteWhatIsShown(const Moment& moment) {
  const std::string& control = moment.step.control;
  const bool loads = control == "cmdOpen" || control == "cmdUndo";
  const bool isWell = !moment.result.ShowedError();
  if (loads && !isWell) shown_ = {};
  const bool displays = control == "cmbAutos" || control == "cmbSprache";
  if ((loads && isWell) || (displays && !moment.after.vehicles.empty())) {
    if (moment.after.fileType == kHandlingFile) NoteVehicle(moment.session.vars);
    if (moment.after.fileType == kDefinitionFile) shown_.definition = true;
    // A file without a palette leaves an empty list and one blank colour.
    if (moment.after.fileType == kColorFile && loads)
      shown_.palette = moment.session.main.lstColors.Count() > 0;
  }
  if (control == "cmdDeleteCar") shown_.handling = shown_.flags = false;
  if (control == "cmdImportCar") shown_.flags = false;
  // A wheel goes into the field that a plane shows in its box.
  if (control == "cmbExtra1" && moment.step.isForced) shown_.definition = false;
  const bool isPaletteLost = !isWell || moment.session.main.lstColors.Count() == 0;
  if (control == "cmdDeleteColor" && isPaletteLost) shown_.palette = false;
}

void Laws::NoteVehicle(const Vars& vars) {
  shown_.handling = true;
  shown_.flags = vars.Cars.At(vars.CurrentCar).ModelFlags.size() == kFlagDigits;
}

}  // namespace wheelwright::soak
