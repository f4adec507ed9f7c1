#include "gamefiles/BackupRevert.h"

#include "gamefiles/FileKinds.h"

#include <string>

namespace wheelwright {

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
