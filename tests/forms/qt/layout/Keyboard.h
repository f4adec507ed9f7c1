// A person at the real windows who has no mouse: keys go to the window in front, as the system
// sends them.
#pragma once

#include "forms/qt/RealWindows.h"

#include <QKeySequence>
#include <QStringList>

namespace wheelwright::testing {

class Keyboard : public RealWindows {
 protected:
  Keyboard() { StopPainting(); }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  void Press(QKeySequence::StandardKey key);
  void Type(const QString& text);

  // Presses Tab until the control has the focus; the test fails if a round doesn't come by it.
  void TabTo(const Control& control);

  // The names of what has the focus in one round of the Tab key, in order.
  QStringList RoundOfTab();

  // Goes to a tab by the keys of its group's bar.
  void TurnTo(TabGroup& group, int tab);

  // What the window manager does when another window has gone.
  void ReturnTo(const Window& window) { Activate(window); }

  QString Focused() const;
};

}  // namespace wheelwright::testing
