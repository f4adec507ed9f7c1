// The program: one session, its real windows, and the event loop.
#include "core/DiskFiles.h"
#include "forms/Lifecycle.h"
#include "forms/Wiring.h"
#include "forms/qt/QtDesktop.h"
#include "forms/qt/QtEdge.h"
#include "forms/qt/QtSettings.h"
#include "forms/qt/WindowSet.h"
#include "screen/Session.h"

#include <clocale>
#include <cstdio>

#include <QApplication>
#include <QDir>

namespace {

// Without a display the toolkit would end the process with a text about its own plugins.
bool LacksDisplay() {
#ifdef Q_OS_LINUX
  return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
         qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
  return false;
#endif
}

std::string ProgramDirectory() {
  return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
}

int RunProgram() {
  wheelwright::DiskFiles files;
  wheelwright::QtDesktop desktop;
  wheelwright::QtSettings settings;
  wheelwright::QtEdge edge;
  wheelwright::Session session(desktop, settings, files);
  wheelwright::WindowSet windows(session, edge);
  wheelwright::WireEvents(session);
  edge.Enter([&] { wheelwright::StartUp(session, ProgramDirectory()); });
  if (edge.HasFailed()) return 1;
  if (desktop.Ended()) return 0;
  session.main.SetVisible(true);
  return QApplication::exec();
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (LacksDisplay()) {
    std::fputs("Wheelwright needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n",
               stderr);
    return 1;
  }
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("Wheelwright");
  // The toolkit sets the user's locale, whose numbers may have a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
  return RunProgram();
}
