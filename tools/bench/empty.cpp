// An empty window of the toolkit, up to the moment when it is idle: what no program of that toolkit
// can do without.
#include "bench/Idle.h"

#include <QApplication>
#include <QWidget>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QWidget window;
  window.resize(900, 600);
  window.show();
  wheelwright::bench::QuitWhenIdle();
  const int code = QApplication::exec();
  wheelwright::bench::PrintMemory();
  return code;
}
