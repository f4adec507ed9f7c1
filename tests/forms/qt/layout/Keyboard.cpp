#include "forms/qt/layout/Keyboard.h"

#include "forms/qt/Settle.h"

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

// No window has more than this to come by.
constexpr int kLongestRound = 100;

// The control's part that takes the keys.
QWidget* TakerOf(QWidget& widget) { return widget.focusProxy() == nullptr ? &widget : widget.focusProxy(); }

}  // namespace

void Keyboard::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWindow* front = QGuiApplication::focusWindow();
  ASSERT_NE(front, nullptr);
  QTest::keyClick(front, key, modifiers);
  Settle();
}

void Keyboard::Press(QKeySequence::StandardKey key) {
  const QKeyCombination combination = QKeySequence::keyBindings(key).constFirst()[0];
  Press(combination.key(), combination.keyboardModifiers());
}

void Keyboard::Type(const QString& text) {
  for (const QChar character : text) {
    QTest::keyClick(QGuiApplication::focusWindow(), character.toLatin1());
  }
  Settle();
}

void Keyboard::TabTo(const Control& control) {
  const QWidget* wanted = TakerOf(windows.Of(control));
  for (int presses = 0; presses < kLongestRound; ++presses) {
    if (QApplication::focusWidget() == wanted) return;
    Press(Qt::Key_Tab);
  }
  ADD_FAILURE() << control.Name() << " isn't reached";
}

// A tab bar has no name of its own.
QString Keyboard::Focused() const {
  const QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) return "nothing";
  if (qobject_cast<const QTabBar*>(widget) != nullptr) widget = widget->parentWidget();
  return widget->objectName();
}

QStringList Keyboard::RoundOfTab() {
  QStringList round;
  for (int presses = 0; presses < kLongestRound; ++presses) {
    Press(Qt::Key_Tab);
    if (round.contains(Focused())) return round;
    round += Focused();
  }
  return round;
}

void Keyboard::TurnTo(TabGroup& group, int tab) {
  TabTo(group);
  for (int left = group.Tab(); left > 0; --left) Press(Qt::Key_Left);
  for (int right = 0; right < tab; ++right) Press(Qt::Key_Right);
  EXPECT_EQ(group.Tab(), tab);
}

}  // namespace wheelwright::testing
