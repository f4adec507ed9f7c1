#include "forms/qt/Program.h"

#include "core/DiskFiles.h"
#include "forms/Lifecycle.h"
#include "forms/Wiring.h"
#include "forms/qt/QtDesktop.h"
#include "forms/qt/QtEdge.h"
#include "forms/qt/QtSettings.h"
#include "forms/qt/WindowSet.h"
#include "screen/Session.h"

#include <string>

#include <QApplication>
#include <QDir>

namespace wheelwright {
namespace {

std::string ProgramDirectory() {
  return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
}

}  // namespace

int RunProgram() {
  DiskFiles files;
  QtDesktop desktop;
  QtSettings settings;
  QtEdge edge;
  Session session(desktop, settings, files);
  WindowSet windows(session, edge);
  WireEvents(session);
  edge.Enter([&] { StartUp(session, ProgramDirectory()); });
  if (edge.HasFailed()) return 1;
  if (desktop.Ended()) return 0;
  session.main.SetVisible(true);
  return QApplication::exec();
}

}  // namespace wheelwright
