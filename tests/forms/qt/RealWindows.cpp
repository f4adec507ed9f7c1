#include "forms/qt/RealWindows.h"

#include "forms/qt/Settle.h"

#include <QtTest/QTest>

namespace wheelwright::testing {

RealWindows::RealWindows() {
  windows.Of(main).show();
  Activate(main);
}

void RealWindows::Activate(const Window& window) {
  windows.Of(window).activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&windows.Of(window)));
  Settle();
}

std::string RealWindows::Differences() {
  std::string differences;
  for (const Window* window : {static_cast<Window*>(&main), static_cast<Window*>(&test.error),
                               static_cast<Window*>(&test.exporter)}) {
    const std::string own = windows.Of(*window).Difference();
    if (!own.empty()) differences += window->Name() + ": " + own + "\n";
    for (const Control* control : window->Controls()) {
      const std::string difference = windows.Difference(*control);
      if (!difference.empty()) differences += control->Name() + ": " + difference + "\n";
    }
  }
  return differences;
}

}  // namespace wheelwright::testing
