// A window of the toolkit with a label, a box and a button, up to the moment when it is idle: what no
// program of that toolkit that shows text can do without.
#include "bench/Idle.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QWidget window;
  auto* const column = new QVBoxLayout(&window);
  column->addWidget(new QLabel("Label"));
  column->addWidget(new QLineEdit("Box"));
  column->addWidget(new QPushButton("Button"));
  window.resize(900, 600);
  window.show();
  wheelwright::bench::QuitWhenIdle();
  const int code = QApplication::exec();
  wheelwright::bench::PrintMemory();
  return code;
}
