#include "forms/Wiring.h"

#include "catalogue/Palette.h"
#include "catalogue/Vehicles.h"
#include "core/DiskFiles.h"
#include "core/Version.h"
#include "editor/ColorPairs.h"
#include "editor/DefinitionRecord.h"
#include "editor/ModelFlags.h"
#include "editor/ShowVehicle.h"
#include "editor/WriteThrough.h"
#include "exchange/ExportImport.h"
#include "gamefiles/LoadProblems.h"
#include "gamefiles/OpenFile.h"
#include "gamefiles/SaveFile.h"
#include "language/Help.h"
#include "language/LanguageFiles.h"

namespace wheelwright {
namespace {

using Handler = void (*)(Session&);

std::function<void()> Runs(Session& session, Handler handler) {
  return [&session, handler] { handler(session); };
}

void WireCommands(Session& s) {
  s.main.closeRequested = Runs(s, RequestEnd);
  s.main.cmdEnde.clicked = Runs(s, RequestEnd);
  s.main.cmdHelp.clicked = Runs(s, OpenManual);
  s.main.cmdInfo.clicked = Runs(s, ShowAbout);
  s.main.cmbSprache.clicked = Runs(s, ChooseLanguage);
  s.main.cmbAutos.clicked = Runs(s, ShowVehicle);
  s.main.cmdOpen.clicked = Runs(s, OpenFile);
  s.main.cmdSave.clicked = Runs(s, SaveFile);
  s.main.cmdSaveAs.clicked = Runs(s, SaveFileAs);
  s.main.cmdUndo.clicked = Runs(s, RevertToSnapshot);
  s.main.cmdBackup.clicked = Runs(s, BackupFile);
  s.main.cmdNewCar.clicked = Runs(s, AddVehicle);
  s.main.cmdDeleteCar.clicked = Runs(s, DeleteVehicle);
  s.main.cmdImportCar.clicked = Runs(s, ImportVehicles);
  s.main.cmdExportCar.clicked = Runs(s, OpenExportWindow);
}

void WireHandlingTabs(Session& s) {
  for (const FieldRow<Car>& field : kHandlingFields) {
    if (auto* const text = InputOf<TextBox>(s.main, field)) {
      text->changed = [&s, &field] { StoreHandlingText(s, field); };
    }
    if (auto* const list = InputOf<PickList>(s.main, field)) {
      list->clicked = [&s, &field] { StoreCode(s, field); };
    }
  }
  for (std::size_t i = 0; i < kFlagCount; ++i) {
    const int flag = static_cast<int>(i) + 1;
    s.main.chkFlag[i].clicked = [&s, flag] { StoreFlag(s, flag); };
  }
  s.main.chkABS.clicked = Runs(s, StoreABS);
  s.main.txtAuthor.changed = Runs(s, MarkAsChanged);
  s.main.txtDate.changed = Runs(s, MarkAsChanged);
}

void WireDefinitionTabs(Session& s) {
  for (const FieldRow<IdeEntry>& field : kDefinitionFields) {
    if (auto* const text = InputOf<TextBox>(s.main, field)) {
      text->changed = [&s, &field] { StoreDefinitionText(s, field); };
    }
    if (auto* const list = InputOf<PickList>(s.main, field)) {
      list->clicked = [&s, &field] { StoreDefinitionPick(s, field); };
    }
  }
  s.main.cmbTyp.clicked = Runs(s, StoreType);
  s.main.cmbExtra1.clicked = Runs(s, StoreWheel);
}

void WireColorTabs(Session& s) {
  s.main.lstColors.clicked = Runs(s, ShowColor);
  s.main.txtColorName.changed = Runs(s, StoreColorName);
  for (const ColorBar& bar : kColorBars) {
    (s.main.*bar.bar).changed = [&s, &bar] { StoreComponent(s, bar); };
  }
  s.main.cmdNewColor.clicked = Runs(s, AddColor);
  s.main.cmdDeleteColor.clicked = Runs(s, DeleteColor);
  s.main.SSTab3.clicked = [&s](int left) { RefreshPickLists(s, left); };
  s.main.cmbColor1.clicked = [&s] { FillSwatch(s, s.main.cmbColor1, s.main.picColor1); };
  s.main.cmbColor2.clicked = [&s] { FillSwatch(s, s.main.cmbColor2, s.main.picColor2); };
  s.main.lstCarColors.clicked = Runs(s, ShowPair);
  s.main.cmdAddColor.clicked = Runs(s, AddPair);
  s.main.cmdRemColor.clicked = Runs(s, RemovePair);
}

void WireOtherWindows(Session& s) {
  FrmExport& window = s.exporter;
  s.error.closeRequested = Runs(s, HideLoadProblems);
  s.error.cmdClose.clicked = Runs(s, HideLoadProblems);
  window.closeRequested = Runs(s, UnloadExportWindow);
  window.cmdClose.clicked = Runs(s, UnloadExportWindow);
  window.cmdAdd.clicked = [&window] { MoveMarkedRows(window.lst1, window.lst2); };
  window.cmdDel.clicked = [&window] { MoveMarkedRows(window.lst2, window.lst1); };
  window.cmdAddAll.clicked = [&window] { MoveAllRows(window.lst1, window.lst2); };
  window.cmdDelAll.clicked = [&window] { MoveAllRows(window.lst2, window.lst1); };
  window.cmdExport.clicked = Runs(s, ExportVehicles);
  window.Spez.clicked = Runs(s, WriteTuningFile);
}

}  // namespace

void WireEvents(Session& session) {
  WireCommands(session);
  WireHandlingTabs(session);
  WireDefinitionTabs(session);
  WireColorTabs(session);
  WireOtherWindows(session);
}

void StartUp(Session& session, const std::string& programDirectory) {
  Vars& vars = session.vars;
  vars.AppPath = programDirectory;
  if (!vars.AppPath.ends_with(kPathSeparator)) vars.AppPath += kPathSeparator;
  session.settings.Set("Exe", "Path", vars.AppPath);
  session.settings.Set("Exe", "Version", VersionText());
  vars.CurrentFileType = kHandlingFile;
  session.main.SSTab1.SetVisible(true);
  session.main.SSTab2.SetVisible(false);
  session.main.SSTab3.SetVisible(false);
  session.error.SetVisible(false);
  vars.IsSaved = true;
  DiscoverLanguages(session);
}

void RequestEnd(Session& session) {
  if (session.vars.IsSaved || session.desktop.AskQuestion(Message(session, kExitAnyway))) {
    session.main.SetVisible(false);
    session.desktop.EndProgram();
  }
}

}  // namespace wheelwright
