#include "forms/qt/MirrorBench.h"

#include "forms/qt/Settle.h"

#include <QtTest/QTest>

namespace wheelwright::testing {

MirrorBench::MirrorBench() { rows.addWidget(&elsewhere); }

void MirrorBench::Raise(QWidget& widget) {
  rows.addWidget(&widget);
  widget.show();
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  elsewhere.setFocus();
  Settle();
}

}  // namespace wheelwright::testing
