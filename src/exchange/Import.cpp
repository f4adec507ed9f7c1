#include "exchange/Import.h"

#include "formats/ExportFile.h"
#include "gamefiles/FileKinds.h"
#include "gamefiles/LoadProblems.h"

#include <string>

namespace wheelwright {
namespace {

void PrepareImportDialog(Session& session) {
  FileDialog& dialog = session.main.CmD1;
  dialog.title = Message(session, kImportTitle);
  dialog.filter = FilterOfKind(session, kFileKinds[kHandlingFile]);
  dialog.flags = FileDialog::kHideReadOnly;
}

void TakeVehicles(Session& session, const std::string& text) {
  PickList& list = session.main.cmbAutos;
  list.AddRows(NewNamesIn(text, list.Rows()));
  LineProblems problems;
  ReadAndTake([&] { ReadExport(text, list.Rows(), session.vars.Cars, problems); },
              [&] { AddLoadProblems(session, problems); });
}

}  // namespace

void ImportVehicles(Session& session) {
  const auto normalPointer = [&] { session.desktop.SetPointer(Pointer::Normal); };
  const auto import = [&] {
    PrepareImportDialog(session);
    session.desktop.ShowOpen(session.main.CmD1);
    session.desktop.SetPointer(Pointer::Hourglass);
    if (!session.files.Exists(session.main.CmD1.file)) {
      normalPointer();
      session.desktop.ShowError(Message(session, kFileIsMissing));
      return;
    }
    TakeVehicles(session, session.files.Read(session.main.CmD1.file));
    session.main.cmbAutos.Choose(0);
    session.vars.IsSaved = false;
    normalPointer();
    session.desktop.ShowInformation(Message(session, kImportIsDone));
  };
  Guarded(session, import, normalPointer);
}

}  // namespace wheelwright
