#include "gamefiles/BackupRevert.h"

#include "gamefiles/FileKinds.h"

#include <string>

namespace wheelwright {

void BackupFile(Session& session) {
  const std::string& file = session.vars.CurrentFile;
  if (file.empty()) return;
  const std::string backup = file + ".backup";
  const bool replaces = session.files.Exists(backup);
  if (replaces && !session.desktop.AskYesNo(Message(session, 61))) return;
  Guarded(session, [&] {
    session.files.Copy(file, backup);
    session.desktop.ShowInformation(Message(session, 60) + "\r\n" + backup);
  });
}

void RevertToSnapshot(Session& session) {
  Guarded(session, [&] {
    if (!session.desktop.AskYesNo(Message(session, 98))) return;
    session.main.cmbAutos.Clear();
    const FileKind& kind = KindOfOpenFile(session.vars);
    kind.copy(session.vars, Snapshots::PutBack);
    kind.fillLists(session);
    session.main.cmbAutos.Choose(0);
    session.desktop.ShowInformation(Message(session, 99));
  });
}

}  // namespace wheelwright
