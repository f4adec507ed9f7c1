// The mouse wheel changes only what has the focus.
#include "forms/qt/MirrorBench.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class InputsTest : public MirrorBench {
 protected:
  // Turns the wheel over the widget; tells whether the widget took it, so that nothing behind does.
  static bool Turn(QWidget& widget) {
    const QPointF place = widget.rect().center();
    QWheelEvent turn(place, widget.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &turn);
    return turn.isAccepted();
  }
};

TEST_F(InputsTest, APickListTurnsWithTheFocusOnly) {
  pick.AddRows({"a", "b", "c"});
  pick.Choose(0);
  auto& combo = Show<QComboBox>(pick);
  EXPECT_FALSE(Turn(combo));
  EXPECT_EQ(pick.Row(), 0);
  combo.setFocus();
  EXPECT_TRUE(Turn(combo));
  EXPECT_EQ(pick.Row(), 1);
}

TEST_F(InputsTest, AScrollBarTurnsWithTheFocusOnly) {
  bar.SetValue(100);
  auto& widget = Show<QScrollBar>(bar);
  EXPECT_FALSE(Turn(widget));
  EXPECT_EQ(bar.Value(), 100);
  widget.setFocus();
  EXPECT_TRUE(Turn(widget));
  EXPECT_NE(bar.Value(), 100);
}

TEST_F(InputsTest, AKeyDoesNotReverseTheWheelOfAScrollBar) {
  auto& widget = Show<QScrollBar>(bar);
  widget.setFocus();
  const auto valueAfterTurn = [&] {
    bar.SetValue(100);
    Turn(widget);
    return bar.Value();
  };
  const int before = valueAfterTurn();
  QTest::keyClick(&widget, Qt::Key_Up);
  EXPECT_EQ(valueAfterTurn(), before);
}

TEST_F(InputsTest, TheWheelAloneGivesNoFocus) {
  pick.AddRows({"a", "b"});
  auto& combo = Show<QComboBox>(pick);
  Turn(combo);
  EXPECT_TRUE(elsewhere.hasFocus());
  EXPECT_EQ(combo.focusPolicy() & Qt::WheelFocus, Qt::StrongFocus);
}

}  // namespace
}  // namespace wheelwright::testing
