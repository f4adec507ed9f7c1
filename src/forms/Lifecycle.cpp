#include "forms/Lifecycle.h"

#include "core/DiskFiles.h"
#include "core/Version.h"
#include "language/LanguageFiles.h"

namespace wheelwright {

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
    session.desktop.EndProgram();
  }
}

}  // namespace wheelwright
