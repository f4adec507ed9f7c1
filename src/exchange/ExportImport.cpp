#include "exchange/ExportImport.h"

#include "formats/ExportFile.h"
#include "gamefiles/FileKinds.h"
#include "gamefiles/LoadProblems.h"

#include <string>
#include <vector>

namespace wheelwright {
namespace {

// A dialog of its own, which keeps nothing from use to use.
std::string ChooseTarget(Session& session) {
  FileDialog dialog;
  dialog.filter = FilterOfKind(session, kFileKinds[kHandlingFile]);
  dialog.flags = FileDialog::kOverwritePrompt;
  session.desktop.ShowSave(dialog);
  return dialog.file;
}

WrittenVehicles ChosenVehicles(const Session& session) {
  return {.names = session.exporter.lst2.Rows(),
          .cars = session.vars.Cars,
          .author = session.main.txtAuthor.Text(),
          .created = session.main.txtDate.Text()};
}

using Writer = std::string (*)(const WrittenVehicles&);

// One write of the whole; a failure among the vehicles leaves the file with what stands before
// them.
void WriteVehicles(Session& session, const std::string& before, Writer write) {
  const std::string target = ChooseTarget(session);
  std::string text;
  try {
    text = write(ChosenVehicles(session));
  } catch (...) {
    session.files.Write(target, before);
    throw;
  }
  session.files.Write(target, text);
}

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

void OpenExportWindow(Session& session) {
  FrmExport& window = session.exporter;
  window.Translate(session.vars.Lang);
  window.lst1.Clear();
  window.lst2.Clear();
  window.lst1.AddRows(session.main.cmbAutos.Rows());
  window.SetVisible(true);
}

void MoveMarkedRows(MarkList& from, MarkList& to) {
  std::vector<std::string> marked;
  for (const int row : from.Marked()) marked.push_back(from.Rows()[static_cast<std::size_t>(row)]);
  to.AddRows(marked);
  from.RemoveMarked();
}

void MoveAllRows(MarkList& from, MarkList& to) {
  to.AddRows(from.Rows());
  from.Clear();
}

void UnloadExportWindow(Session& session) {
  FrmExport& window = session.exporter;
  window.SetVisible(false);
  window.lst1.Clear();
  window.lst2.Clear();
}

void ExportVehicles(Session& session) {
  if (session.exporter.lst2.Count() == 0) return;
  Guarded(session, [&] {
    WriteVehicles(session, ExportHeader(ChosenVehicles(session)), WriteExport);
    session.desktop.ShowInformation(Message(session, kVehiclesWereExported));
    UnloadExportWindow(session);
  });
}

void WriteTuningFile(Session& session) {
  if (session.exporter.lst2.Count() == 0) return;
  WriteVehicles(session, "", WriteTuningList);
}

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
