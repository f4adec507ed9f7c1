#include "language/Help.h"

#include "core/Version.h"

#include <string>

namespace wheelwright {

void OpenManual(Session& session) {
  const std::string manual = session.vars.AppPath + "Anleitung.htm";
  if (!session.files.Exists(manual)) {
    session.desktop.ShowError(Message(session, kManualIsMissing));
    return;
  }
  session.desktop.SetPointer(Pointer::Hourglass);
  session.desktop.OpenWithShell(manual);
  session.desktop.SetPointer(Pointer::Normal);
}

void ShowAbout(Session& session) {
  const std::string homePage = kHomePage;
  session.desktop.ShowInformation(
      std::string(kProgramName) + " V" + VersionText() +
      "\r\n\r\nWritten by the Wheelwright project\r\nContact: " + homePage +
      "contact\r\nHome page: " + homePage +
      "\r\n\r\nManual and corrections: the Wheelwright project\r\nContact: " + homePage + "manual");
}

}  // namespace wheelwright
