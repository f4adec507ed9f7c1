// The program: the application of the toolkit, and what runs in it.
#include "core/DiskFiles.h"
#include "forms/qt/Program.h"

#include <clocale>
#include <cstdio>

#include <QApplication>

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

}  // namespace

int main(int argumentCount, char** arguments) {
  wheelwright::LetWritesFail();
  if (LacksDisplay()) {
    std::fputs("Wheelwright needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n", stderr);
    return 1;
  }
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("Wheelwright");
  // The desktop finds the entry of its menu by this name.
  QApplication::setDesktopFileName("example.wheelwright.Wheelwright");
  QApplication::setWindowIcon(wheelwright::ProgramIcon());
  // The toolkit sets the user's locale, whose numbers may have a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
  return wheelwright::RunProgram();
}
