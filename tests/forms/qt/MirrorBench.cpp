#include "forms/qt/MirrorBench.h"

#include "forms/qt/Settle.h"

#include <QAbstractItemModelTester>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class PaintCount : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }

  int count = 0;
};

}  // namespace

MirrorBench::MirrorBench() { rows.addWidget(&elsewhere); }

void MirrorBench::Raise(QWidget& widget) {
  for (auto* model : widget.findChildren<QAbstractItemModel*>()) {
    new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal, model);
  }
  rows.addWidget(&widget);
  widget.show();
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  elsewhere.setFocus();
  Settle();
}

int MirrorBench::PaintsAfter(const std::function<void()>& action, QWidget& widget) {
  Settle();
  PaintCount paints;
  widget.installEventFilter(&paints);
  action();
  Settle();
  return paints.count;
}

}  // namespace wheelwright::testing
