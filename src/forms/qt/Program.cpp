#include "forms/qt/Program.h"

#include "core/DiskFiles.h"
#include "forms/Wiring.h"
#include "forms/qt/layout/WindowSet.h"
#include "forms/qt/system/QtPorts.h"
#include "screen/Session.h"

#include <string>

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QStyle>

namespace wheelwright {
namespace {

std::string ProgramDirectory() {
  return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QString(":/icons/wheelwright-%1.png").arg(size));
  return icon;
}

int RunProgram() {
  DiskFiles files;
  QtDesktop desktop;
  QtSettings settings;
  QtEdge edge;
  Session session(desktop, settings, files);
  WindowSet windows(session, edge);
  QSize room = QGuiApplication::primaryScreen()->availableSize();
  room.rheight() -= QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  windows.FitInto(room);
  WireEvents(session);
  edge.Enter([&] { StartUp(session, ProgramDirectory()); });
  if (edge.HasFailed()) return 1;
  if (desktop.Ended()) return 0;
  session.main.SetVisible(true);
  return QApplication::exec();
}

}  // namespace wheelwright
