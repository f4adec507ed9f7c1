#include "bench/Idle.h"

#include <cstdio>
#include <fstream>
#include <string>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

namespace wheelwright::bench {

void QuitWhenIdle() {
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

void PrintMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) std::printf("%s\n", line.c_str());
  }
}

}  // namespace wheelwright::bench
