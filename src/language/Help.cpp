#include "language/Help.h"

#include "core/Version.h"

#include <string>

namespace wheelwright {
namespace {

void OpenWithShell(Session& session, const std::string& file) {
  session.desktop.SetPointer(Pointer::Hourglass);
  session.desktop.OpenWithShell(file);
  session.desktop.SetPointer(Pointer::Normal);
}

}  // namespace

void OpenManual(Session& session) {
  const std::string manual = session.vars.AppPath + "Anleitung.htm";
  if (!session.files.Exists(manual)) {
    session.desktop.ShowError(Message(session, kManualIsMissing));
    return;
  }
  OpenWithShell(session, manual);
}

void ShowAbout(Session& session) {
  const std::string homePage = kHomePage;
  session.desktop.ShowInformation(std::string(kProgramName) + " V" + VersionText() +
                                  "\r\n"
                                  "\r\n"
                                  "Written by the Wheelwright project\r\n"
                                  "Contact: " +
                                  homePage + "contact\r\n" + "Home page: " + homePage +
                                  "\r\n"
                                  "\r\n"
                                  "Manual and corrections: the Wheelwright project\r\n"
                                  "Contact: " +
                                  homePage + "manual");
}

}  // namespace wheelwright
