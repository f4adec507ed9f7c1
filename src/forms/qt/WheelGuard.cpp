#include "forms/qt/WheelGuard.h"

#include <QEvent>

namespace wheelwright {

void WheelGuard::Guard(QWidget& widget) {
  widget.setFocusPolicy(Qt::StrongFocus);
  widget.installEventFilter(new WheelGuard(&widget));
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace wheelwright
