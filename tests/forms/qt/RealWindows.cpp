#include "forms/qt/RealWindows.h"

#include "forms/qt/Settle.h"
#include "replay/OnScreen.h"

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

void RealWindows::StopPainting() {
  for (const Window* window : all) windows.Of(*window).setUpdatesEnabled(false);
}

std::string RealWindows::Differences() {
  std::string differences;
  for (const Window* window : all) {
    const QWidget& widget = windows.Of(*window);
    // Where a program says [*] and doesn't mean the mark of a changed document, it says it twice.
    const QString title = widget.windowTitle().replace("[*][*]", "[*]");
    if (title.toStdString() != window->Title() || widget.isHidden() == window->IsVisible()) {
      differences += window->Name() + ": another title, or shown or hidden otherwise\n";
    }
    for (const Control* control : window->Controls()) {
      const std::string difference = replay::DifferenceOnScreen(*control, windows.Of(*control));
      if (!difference.empty()) differences += control->Name() + ": " + difference + "\n";
    }
  }
  return differences;
}

}  // namespace wheelwright::testing
