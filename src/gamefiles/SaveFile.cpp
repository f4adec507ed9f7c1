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
  std::string text = kind.rewritten(session, target);
  kind.copy(session.vars, Snapshots::Take);
  text += kLineEnd;
  session.files.Write(target, text);
  session.vars.IsSaved = true;
  return true;
}

void PrepareDialog(Session& session) {
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
    PrepareDialog(session);
    session.desktop.ShowSave(dialog);
    if (!WriteTables(session, dialog.file)) return;
    session.vars.CurrentFile = dialog.file;
    session.main.SetTitle("GTA3 PC-Version - Wheelwright [" + session.vars.CurrentFile + "]");
    session.desktop.ShowInformation(Message(session, kFileWasSaved));
  });
}

}  // namespace wheelwright
