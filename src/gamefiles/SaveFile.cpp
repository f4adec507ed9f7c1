#include "gamefiles/SaveFile.h"

#include "core/Text.h"
#include "gamefiles/ColorWriter.h"
#include "gamefiles/DefinitionWriter.h"
#include "gamefiles/FileKinds.h"
#include "gamefiles/HandlingWriter.h"
#include "screen/Guarded.h"

#include <string>

namespace wheelwright {
namespace {

std::string RewrittenText(Session& session, const std::string& target) {
  switch (session.vars.CurrentFileType) {
    case kDefinitionFile:
      return RewriteDefinitionText(session);
    case kColorFile:
      return RewriteColorFile(session, target);
    default:
      return RewriteHandlingText(session);
  }
}

void CopyTablesOverSnapshots(Vars& vars) {
  switch (vars.CurrentFileType) {
    case kDefinitionFile:
      vars.Kopie_Ides = vars.Ides;
      break;
    case kColorFile:
      vars.Kopie_Colors = vars.Colors;
      vars.Kopie_CarColors = vars.CarColors;
      break;
    default:
      vars.Kopie_Cars = vars.Cars;
      break;
  }
}

// Writes to the target what the template, the open file, and the tables make together. The
// snapshots are ahead of the file if the write fails. False if there is no template.
bool WriteTables(Session& session, const std::string& target) {
  if (!session.files.Exists(session.vars.CurrentFile)) return false;
  session.files.ClearAttributes(session.vars.CurrentFile);
  std::string text = RewrittenText(session, target);
  CopyTablesOverSnapshots(session.vars);
  text += kLineEnd;
  session.files.Write(target, text);
  session.vars.IsSaved = true;
  return true;
}

void PrepareDialog(Session& session) {
  FileDialog& dialog = session.main.CmD1;
  for (const FileKind& kind : kFileKinds) {
    // The colour file keeps the filter of the open dialog.
    if (kind.type == session.vars.CurrentFileType && kind.type != kColorFile) {
      dialog.filter = FilterOfKind(session, kind);
    }
  }
  dialog.flags = FileDialog::kOverwritePrompt;
}

}  // namespace

void SaveFile(Session& session) {
  if (!WriteTables(session, session.vars.CurrentFile)) return;
  session.desktop.ShowInformation(Message(session, 116));
}

void SaveFileAs(Session& session) {
  Guarded(session, [&] {
    FileDialog& dialog = session.main.CmD1;
    PrepareDialog(session);
    session.desktop.ShowSave(dialog);
    if (!WriteTables(session, dialog.file)) return;
    session.vars.CurrentFile = dialog.file;
    session.main.SetTitle("GTA3 PC-Version - Wheelwright [" + session.vars.CurrentFile + "]");
    session.desktop.ShowInformation(Message(session, 116));
  });
}

}  // namespace wheelwright
