// The mouse wheel changes no value.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QScrollBar>
#include <QTabBar>
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

// Who scrolls a page may have any of them under the pointer, and the focus on it.
TEST_F(InputsTest, TheWheelTurnsNoInputWithOrWithoutTheFocus) {
  pick.AddRows({"a", "b", "c"});
  pick.Choose(0);
  bar.SetValue(100);
  const auto turnAll = [this] {
    for (const Control* control : std::initializer_list<Control*>{&pick, &bar, &tabs}) {
      auto* group = qobject_cast<QTabWidget*>(&mirrors.Of(*control).Widget());
      QWidget& widget = group == nullptr ? mirrors.Of(*control).Widget() : *group->tabBar();
      EXPECT_FALSE(Turn(widget)) << control->Name();
      widget.setFocus();
      EXPECT_TRUE(widget.hasFocus()) << control->Name();
      EXPECT_FALSE(Turn(widget)) << control->Name();
    }
  };
  Show<QComboBox>(pick);
  Show<QScrollBar>(bar);
  Show<QTabWidget>(tabs);
  turnAll();
  EXPECT_EQ(pick.Row(), 0);
  EXPECT_EQ(bar.Value(), 100);
  EXPECT_EQ(tabs.Tab(), 0);
}

TEST_F(InputsTest, TheWheelScrollsAnOpenList) {
  pick.AddRows(std::vector<std::string>(100, "row"));
  auto& combo = Show<QComboBox>(pick);
  combo.showPopup();
  Settle();
  EXPECT_TRUE(Turn(*combo.view()->viewport()));
  EXPECT_GT(combo.view()->verticalScrollBar()->value(), 0);
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
