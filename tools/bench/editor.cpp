// The editor, up to the moment when its window is idle.
#include "bench/Idle.h"
#include "forms/qt/Program.h"

#include <QApplication>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  wheelwright::bench::QuitWhenIdle();
  const int code = wheelwright::RunProgram();
  wheelwright::bench::PrintMemory();
  return code;
}
