#include "gamefiles/SaveFile.h"

#include "core/Text.h"
#include "gamefiles/FileKinds.h"

#include <string>

namespace wheelwright {
namespace {

// Writes to the target what the template, the open file, and the tables make together. The
// snapshots are ahead of the file if the write fails. False if there is no template.
bool WriteTables(Session& session, const std::string& target) {
  if (!session.files.Exists(session.vars.CurrentFile)) return false;
  session.files.ClearAttributes(session.vars.CurrentFile);
  const FileKind& kind = KindOfOpenFile(session.vars);
  const std::string text = kind.rewritten(session, target);
  kind.copy(session.vars, Snapshots::Take);
  session.files.Write(target, text);
  session.vars.IsSaved = true;
  return true;
}

void PrepareSaveDialog(Session& session) {
  FileDialog& dialog = session.main.CmD1;
  // Without a filter of its own a kind keeps that of the open dialog.
  const FileKind& kind = KindOfOpenFile(session.vars);
  if (kind.hasSaveFilter) dialog.filter = FilterOfKind(session, kind);
  dialog.flags = FileDialog::kOverwritePrompt;
}

}  // namespace

void SaveFile(Session& session) {
  if (!WriteTables(session, session.vars.CurrentFile)) return;
  session.desktop.ShowInformation(Message(session, kFileWasSaved));
}

void SaveFileAs(Session& session) {
  Guarded(session, [&] {
    FileDialog& dialog = session.main.CmD1;
    PrepareSaveDialog(session);
    session.desktop.ShowSave(dialog);
    if (!WriteTables(session, dialog.file)) return;
    session.vars.CurrentFile = dialog.file;
    session.main.SetTitle("GTA3 PC-Version - Wheelwright [" + session.vars.CurrentFile + "]");
    session.desktop.ShowInformation(Message(session, kFileWasSaved));
  });
}

void BackupFile(Session& session) {
  const std::string& file = session.vars.CurrentFile;
  if (file.empty()) return;
  const std::string backup = file + kBackupEnding;
  const bool replaces = session.files.Exists(backup);
  if (replaces && !session.desktop.AskYesNo(Message(session, kReplaceBackup))) return;
  Guarded(session, [&] {
    session.files.Copy(file, backup);
    session.desktop.ShowInformation(Message(session, kBackupWasMade) + "\r\n" + backup);
  });
}

void RevertToSnapshot(Session& session) {
  Guarded(session, [&] {
    if (!session.desktop.AskYesNo(Message(session, kDiscardChanges))) return;
    session.main.cmbAutos.Clear();
    const FileKind& kind = KindOfOpenFile(session.vars);
    kind.copy(session.vars, Snapshots::PutBack);
    kind.fillLists(session);
    session.main.cmbAutos.Choose(0);
    session.desktop.ShowInformation(Message(session, kChangesWereReverted));
  });
}

}  // namespace wheelwright
