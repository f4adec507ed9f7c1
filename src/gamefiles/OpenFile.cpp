#include "gamefiles/OpenFile.h"

#include "core/Numbers.h"
#include "formats/Lines.h"
#include "gamefiles/FileKinds.h"

#include <optional>

namespace wheelwright {
namespace {

void PrepareOpenDialog(Session& session) {
  FileDialog& dialog = session.main.CmD1;
  dialog.title = Message(session, kOpenTitle);
  dialog.filter = FilterOfAllKinds(session);
  dialog.filterIndex = ToInteger16(session.settings.GetOr("Settings", "FileIndex", "0"));
  const std::string lastFile = session.settings.GetOr("Settings", "OpenPath", "");
  dialog.file = session.files.Exists(lastFile) ? lastFile : "";
  dialog.flags = FileDialog::kReadOnlyTicked | FileDialog::kHideReadOnly;
}

void RememberChoice(Session& session) {
  const FileDialog& dialog = session.main.CmD1;
  session.vars.CurrentFile = dialog.file;
  session.settings.Set("Settings", "OpenPath", session.vars.CurrentFile);
  session.settings.Set("Settings", "FileIndex", std::to_string(dialog.filterIndex));
}

void ShowTabsOf(FrmMain& main, const FileKind& shown) {
  for (const FileKind& kind : kFileKinds) (main.*kind.tabs).SetVisible(&kind == &shown);
}

// Gives what the open file holds from then on.
std::string NormaliseLineEnds(Session& session) {
  const std::string& file = session.vars.CurrentFile;
  std::string text = session.files.Read(file);
  auto rewritten = WithoutBareLineFeeds(text);
  if (!rewritten) return text;
  session.files.Write(file, *rewritten);
  return *std::move(rewritten);
}

void EnableCommands(FrmMain& main, const FileKind& kind) {
  (main.*kind.tabs).SetEnabled(true);
  main.cmdSave.SetEnabled(true);
  main.cmdBackup.SetEnabled(true);
  main.FrameAutos.SetEnabled(true);
  main.cmdUndo.SetEnabled(true);
  main.cmdSaveAs.SetEnabled(true);
}

void ResetWindow(Session& session) {
  FrmMain& main = session.main;
  session.vars.CurrentFile.clear();
  main.cmdSave.SetEnabled(false);
  main.cmdSaveAs.SetEnabled(false);
  main.cmdBackup.SetEnabled(false);
  main.FrameAutos.SetEnabled(false);
  for (const FileKind& kind : kFileKinds) (main.*kind.tabs).SetEnabled(false);
  main.cmdUndo.SetEnabled(false);
  session.vars.IsSaved = true;
  main.cmbAutos.Clear();
}

void EndWithError(Session& session, const std::string& text) {
  session.desktop.SetPointer(Pointer::Normal);
  session.desktop.ShowError(text);
}

void OpenChosenFile(Session& session) {
  FrmMain& main = session.main;
  PrepareOpenDialog(session);
  session.desktop.ShowOpen(main.CmD1);
  session.desktop.SetPointer(Pointer::Hourglass);
  RememberChoice(session);
  if (!session.files.Exists(session.vars.CurrentFile))
    return EndWithError(session, Message(session, kFileIsMissing));
  main.SetTitle("GTAViceCity PC-Version - Wheelwright [" + session.vars.CurrentFile + "]");
  main.cmbAutos.Clear();
  const FileKind* const kind = KindOfFile(session.vars.CurrentFile, main.CmD1.filterIndex);
  if (kind == nullptr) return EndWithError(session, "Error: Filetype unknown!");
  session.vars.CurrentFileType = kind->type;
  ShowTabsOf(main, *kind);
  if (kind->hasAuthor) {
    main.txtAuthor.SetText("");
    main.txtDate.SetText("");
  }
  if (const std::optional<int> damagedLine = kind->load(session, NormaliseLineEnds(session))) {
    session.desktop.SetPointer(Pointer::Normal);
    ResetWindow(session);
    session.desktop.ShowError(Message(session, kDamagedLine) + std::to_string(*damagedLine));
    return;
  }
  main.cmbAutos.Choose(0);
  // The choice has filled the screen, which leaves the flag in whatever state the handlers give.
  session.vars.IsSaved = true;
  EnableCommands(main, *kind);
  main.cmbAutos.TakeFocus();
  session.desktop.SetPointer(Pointer::Normal);
}

}  // namespace

void OpenFile(Session& session) {
  if (!session.vars.IsSaved && !session.desktop.AskQuestion(Message(session, kOpenAnyway))) return;
  try {
    OpenChosenFile(session);
  } catch (...) {
    const Failure failure = FailureInFlight();
    session.desktop.SetPointer(Pointer::Normal);
    if (failure.IsCancel()) return;
    ResetWindow(session);
    session.desktop.ShowError(failure.Message());
  }
}

}  // namespace wheelwright
