// The tests of the real windows: one application, on no display.
#include "replay/Toolkit.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argumentCount, char** arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argumentCount, arguments);
  wheelwright::replay::KeepToolkitQuiet();
  const QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("Wheelwright");
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
